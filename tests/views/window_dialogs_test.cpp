// The play dialogs driven by keys and clicks: the bet amount, the pot
// breakdown, the game over, the new game, the player's name and the splash.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "tests/support/scripted_platform.h"
#include "views/frm_bet_amount.h"
#include "views/frm_game_over.h"
#include "views/frm_new_game.h"
#include "views/frm_player_name.h"
#include "views/frm_pot_breakdown.h"
#include "views/frm_splash.h"

using namespace holdem;

namespace {
// Raise mode: $1,200 to call, $9,900 in the stack.
const BetAmountRequest kRaise{2, 1400, 1200, 9900};
// Bet mode: nothing bet yet on the street.
const BetAmountRequest kBet{0, 0, 0, 5000};
}  // namespace

class WindowDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void betDialogOpensInRaiseOrBetMode() {
        test::ScriptedPlatform platform;
        frmBetAmount raise(kRaise, platform);
        QCOMPARE(raise.windowTitle(), QString("Enter Raise Amount"));
        QCOMPARE(raise.lblBetAmount->text(), QString("How much do you want to raise?"));
        QVERIFY(!raise.lblToCall->isHidden());
        QCOMPARE(raise.lblToCallAmount->text(), QString("$1,200"));
        QCOMPARE(raise.lblMaxRaise->text(), QString("Max Raise (All In):"));
        QCOMPARE(raise.lblMaxRaiseAmount->text(), QString("$8,700"));
        QCOMPARE(raise.size(), QSize(280, 169));

        frmBetAmount bet(kBet, platform);
        QCOMPARE(bet.windowTitle(), QString("Enter Bet Amount"));
        QCOMPARE(bet.lblBetAmount->text(), QString("How much do you want to bet?"));
        QVERIFY(bet.lblToCall->isHidden());
        QVERIFY(bet.lblToCallAmount->isHidden());
        QCOMPARE(bet.lblMaxRaise->text(), QString("Max Bet (All In):"));
        QCOMPARE(bet.lblMaxRaiseAmount->text(), QString("$5,000"));
    }

    void onlyDigitsBackspaceAndEnterGetThrough() {
        test::ScriptedPlatform platform;
        frmBetAmount form(kRaise, platform);
        form.show();
        QTest::keyClicks(form.txtBetAmount, "1a2-b.0 0x,");
        QCOMPARE(form.txtBetAmount->text(), QString("1200"));
        QTest::keyClick(form.txtBetAmount, Qt::Key_Backspace);
        QTest::keyClick(form.txtBetAmount, Qt::Key_Backspace);
        QCOMPARE(form.txtBetAmount->text(), QString("12"));
        // A paste by key is a typed key too, and is dropped.
        QTest::keyClick(form.txtBetAmount, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(form.txtBetAmount->text(), QString("12"));
        QTest::keyClicks(form.txtBetAmount, "00");
        QTest::keyClick(form.txtBetAmount, Qt::Key_Return);
        // Enter does what OK does: a raise is the typed amount plus the call.
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(form.BetAmount, 1200 + 1200);
        QVERIFY(platform.messages.empty());
    }

    void okRefusesWithItsMessagesAndKeepsTheDialog() {
        test::ScriptedPlatform platform;
        frmBetAmount form(kRaise, platform);
        form.show();

        QTest::mouseClick(form.cmdOK, Qt::LeftButton);
        QCOMPARE(platform.messages.size(), size_t(1));
        QCOMPARE(platform.messages[0].text, std::string("No bet entered"));
        QCOMPARE(platform.messages[0].icon, MsgIcon::None);

        QTest::keyClicks(form.txtBetAmount, "0");
        QTest::mouseClick(form.cmdOK, Qt::LeftButton);
        QCOMPARE(platform.messages.back().text, std::string("No bet entered"));
        QCOMPARE(form.txtBetAmount->text(), QString(""));

        QTest::keyClicks(form.txtBetAmount, "150");
        QTest::mouseClick(form.cmdOK, Qt::LeftButton);
        QCOMPARE(platform.messages.back().text, std::string("You must bet in multiples of $100."));
        QCOMPARE(platform.messages.back().icon, MsgIcon::Information);
        QCOMPARE(form.txtBetAmount->text(), QString("150"));

        // One step above the largest raise: the message names the whole stack.
        form.txtBetAmount->clear();
        QTest::keyClicks(form.txtBetAmount, "8800");
        QTest::mouseClick(form.cmdOK, Qt::LeftButton);
        QCOMPARE(platform.messages.back().text, std::string("You've only got $9,900."));
        QCOMPARE(platform.messages.back().title, std::string("Bet Exceeds Your Chip Stack"));
        QCOMPARE(form.txtBetAmount->text(), QString(""));
        QCOMPARE(form.BetAmount, 0);
        QVERIFY(form.isVisible());
        QCOMPARE(platform.messages.size(), size_t(4));
    }

    void betMaxFillsTheLargestRaiseAndOkTakesTheStack() {
        test::ScriptedPlatform platform;
        frmBetAmount form(kRaise, platform);
        form.show();
        QTest::mouseClick(form.cmdBetMax, Qt::LeftButton);
        QCOMPARE(form.txtBetAmount->text(), QString("8700"));
        QVERIFY(form.isVisible());
        QTest::mouseClick(form.cmdOK, Qt::LeftButton);
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(form.BetAmount, 9900);
    }

    void enterOnEmptyOrZeroAndCancel() {
        test::ScriptedPlatform platform;
        frmBetAmount empty(kBet, platform);
        empty.show();
        QTest::keyClick(empty.txtBetAmount, Qt::Key_Return);
        QCOMPARE(platform.messages.size(), size_t(1));
        QCOMPARE(platform.messages[0].text, std::string("No bet entered"));
        QVERIFY(empty.isVisible());

        // "0" and Enter leave as a cancel does, without a message.
        QTest::keyClicks(empty.txtBetAmount, "0");
        QTest::keyClick(empty.txtBetAmount, Qt::Key_Return);
        QVERIFY(!empty.isVisible());
        QCOMPARE(empty.BetAmount, 0);
        QCOMPARE(platform.messages.size(), size_t(1));

        frmBetAmount cancelled(kBet, platform);
        cancelled.show();
        QTest::keyClicks(cancelled.txtBetAmount, "500");
        QTest::mouseClick(cancelled.cmdCancel, Qt::LeftButton);
        QCOMPARE(cancelled.result(), int(QDialog::Rejected));
        QCOMPARE(cancelled.BetAmount, 0);
    }

    void potBreakdownShowsEverySeatAndTheTotal() {
        PotBreakdown b;
        b.name[1] = "Ann";
        b.bet[1] = 1200;
        b.name[2] = "Bob, folded";
        b.bet[2] = 300;
        b.name[5] = "Eve";
        b.bet[5] = 1234500;
        b.total = 1200 + 300 + 1234500;
        frmPotBreakdown form(b);
        QCOMPARE(form.size(), QSize(256, 223));
        QCOMPARE(form.lblName[10]->text(), QString("Pot Breakdown"));
        QCOMPARE(form.lblName[1]->text(), QString("Ann"));
        QCOMPARE(form.lblInPot[1]->text(), QString("$1,200"));
        QCOMPARE(form.lblName[2]->text(), QString("Bob, folded"));
        QCOMPARE(form.lblInPot[2]->text(), QString("$300"));
        QCOMPARE(form.lblInPot[5]->text(), QString("$1,234,500"));
        // An empty seat: no name and nothing in.
        QCOMPARE(form.lblName[3]->text(), QString(""));
        QCOMPARE(form.lblInPot[3]->text(), QString("$0"));
        QCOMPARE(form.lblName[9]->text(), QString("Total:"));
        QCOMPARE(form.lblInPot[9]->text(), QString("$1,236,000"));
        form.show();
        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void gameOverNamesThePlaceWithItsEnding() {
        const std::pair<int16_t, const char*> cases[] = {
            {1, "You Finished 1st"},     {2, "You Finished 2nd"},      {3, "You Finished 3rd"},
            {11, "You Finished 11th"},   {22, "You Finished 22nd"},    {112, "You Finished 112th"},
            {101, "You Finished 101st"}, {1000, "You Finished 1000th"}};
        for (const auto& [place, text] : cases) {
            frmGameOver form(place);
            QCOMPARE(form.lblFinished->text(), QString(text));
        }
        frmGameOver form(7);
        QCOMPARE(form.size(), QSize(312, 133));
        QCOMPARE(form.Label1->text(), QString("Game Over"));
        QVERIFY(form.Label1->font().bold() && form.Label1->font().italic());
        QCOMPARE(form.lblClose->text(), QString("[CLOSE]"));
        // The label fits its text inside the form.
        QVERIFY(form.lblClose->geometry().right() < form.width());
        QVERIFY(form.lblClose->width() >= form.lblClose->fontMetrics().horizontalAdvance("[CLOSE]"));
        form.show();
        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void newGameListsAndTheirChoices() {
        frmNewGame form(3);
        form.show();
        QCOMPARE(form.cbGameType->currentText(), QString("Single Table"));
        QCOMPARE(form.cbPlayers->currentText(), QString("80"));
        QCOMPARE(form.cbSpeed->currentText(), QString("Slow"));
        QVERIFY(!form.cbPlayers->isEnabled());
        QVERIFY(!form.cbGameType->isEditable() && !form.cbPlayers->isEditable() &&
                !form.cbSpeed->isEditable());
        form.cbGameType->setCurrentText("Tournament");
        QVERIFY(form.cbPlayers->isEnabled());
        form.cbPlayers->setCurrentText("1,000");
        form.cbSpeed->setCurrentText("Fast");
        QTest::mouseClick(form.lblOK, Qt::LeftButton);
        NewGameChoices choices = form.Choices();
        QVERIFY(!choices.cancelled);
        QCOMPARE(choices.gameType, std::string("Tournament"));
        QCOMPARE(choices.players, std::string("1,000"));
        QCOMPARE(choices.speed, std::string("Fast"));

        frmNewGame again(1);
        again.show();
        QCOMPARE(again.cbSpeed->currentText(), QString("Fast"));
        again.cbGameType->setCurrentText("Tournament");
        again.cbGameType->setCurrentText("Single Table");
        QVERIFY(!again.cbPlayers->isEnabled());
        QTest::mouseClick(again.lblCancel, Qt::LeftButton);
        QVERIFY(again.Choices().cancelled);
        QVERIFY(!again.isVisible());
    }

    void playerNameKeepsTheLastNameAndTakesEnter() {
        frmPlayerName form;
        form.show();
        QCOMPARE(form.txtPlayerName->text(), QString(""));
        QTest::keyClicks(form.txtPlayerName, "Ann \"Ace\" Lee");
        QTest::keyClick(form.txtPlayerName, Qt::Key_Return);
        QVERIFY(!form.isVisible());
        // The double quote cannot be stored in a saved game and is left out.
        QCOMPARE(form.Entry(), std::string("Ann Ace Lee"));
        form.show();
        QCOMPARE(form.txtPlayerName->text(), QString("Ann Ace Lee"));
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(form.isVisible());
        QTest::mouseClick(form.lblOK, Qt::LeftButton);
        QVERIFY(!form.isVisible());
        QCOMPARE(form.Entry(), std::string("Ann Ace Lee"));
    }

    void splashClosesAtTheSecondTickOrAKey() {
        const std::string folder = QCoreApplication::applicationDirPath().toStdString() + "/";
        frmSplash timed(folder);
        QVERIFY(!timed.timerSplash->isActive());  // not before it can be seen
        timed.show();
        QCOMPARE(timed.lblVersion->text(), QString("Version 1.1"));
        QCOMPARE(timed.lblCompanyProduct->text(), QString("Corvane"));
        QCOMPARE(timed.lblProductName->text(), QString("Texas Hold'em"));
        QCOMPARE(timed.lblPlatform->text(), QString("For Windows"));
        QCOMPARE(timed.timerSplash->interval(), 1200);
        QVERIFY(timed.timerSplash->isActive());
        timed.timerSplash_Timer();
        QVERIFY(timed.isVisible());
        timed.timerSplash_Timer();
        QVERIFY(!timed.isVisible());
        QVERIFY(!timed.timerSplash->isActive());

        frmSplash keyed(folder);
        keyed.show();
        QTest::keyClick(&keyed, Qt::Key_Space);
        QVERIFY(!keyed.isVisible());
        QVERIFY(!keyed.timerSplash->isActive());
        QCOMPARE(keyed.result(), int(QDialog::Accepted));
        // A tick after the key finds it closed already.
        keyed.timerSplash_Timer();
        QVERIFY(!keyed.isVisible());
    }
};

QTEST_MAIN(WindowDialogsTest)
#include "window_dialogs_test.moc"
