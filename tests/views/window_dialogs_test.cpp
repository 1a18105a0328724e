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
const BetAmountRequest kRaise{2, 1400, 1200, 9900};  // $1,200 to call, $9,900 in the stack
const BetAmountRequest kBet{0, 0, 0, 5000};          // nothing bet yet on the street

QString Texts(std::initializer_list<QWidget*> widgets) {
    QStringList texts;
    for (QWidget* w : widgets) texts << (w->isHidden() ? "-" : w->property("text").toString());
    return texts.join('|');
}
}  // namespace

class WindowDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void betDialogOpensInRaiseOrBetMode() {
        test::ScriptedPlatform platform;
        frmBetAmount raise(kRaise, platform);
        QCOMPARE(raise.size(), QSize(280, 169));
        frmBetAmount bet(kBet, platform);
        for (frmBetAmount* f : {&raise, &bet}) f->show();
        QCOMPARE(
            raise.windowTitle() + "|" +
                Texts(
                    {raise.lblBetAmount, raise.lblToCallAmount, raise.lblMaxRaise, raise.lblMaxRaiseAmount}),
            QString("Enter Raise Amount|How much do you want to raise?|$1,200|Max Raise (All In):|$8,700"));
        QCOMPARE(bet.windowTitle() + "|" +
                     Texts({bet.lblBetAmount, bet.lblToCall, bet.lblToCallAmount, bet.lblMaxRaise,
                            bet.lblMaxRaiseAmount}),
                 QString("Enter Bet Amount|How much do you want to bet?|-|-|Max Bet (All In):|$5,000"));
        QVERIFY(!raise.lblToCall->isHidden());
    }

    // Only digits and Backspace get through; Enter does what OK does, and a
    // raise is the typed amount plus the call.
    void keysThenEnter() {
        test::ScriptedPlatform platform;
        frmBetAmount form(kRaise, platform);
        form.show();
        QTest::keyClicks(form.txtBetAmount, "1a2-b.0 0x,");
        QCOMPARE(form.txtBetAmount->text(), QString("1200"));
        QTest::keyClick(form.txtBetAmount, Qt::Key_Backspace);
        QTest::keyClick(form.txtBetAmount, Qt::Key_Backspace);
        QTest::keyClick(form.txtBetAmount, Qt::Key_V, Qt::ControlModifier);  // a paste is dropped too
        QCOMPARE(form.txtBetAmount->text(), QString("12"));
        QTest::keyClicks(form.txtBetAmount, "00");
        QTest::keyClick(form.txtBetAmount, Qt::Key_Return);
        QCOMPARE(std::make_pair(form.result(), form.BetAmount), std::make_pair(int(QDialog::Accepted), 2400));
        QVERIFY(platform.messages.empty());
    }

    void okRefusesWithItsMessagesAndKeepsTheDialog() {
        test::ScriptedPlatform platform;
        frmBetAmount form(kRaise, platform);
        form.show();
        const struct {
            const char *typed, *text, *title, *left;
            MsgIcon icon;
        } cases[] = {
            {"", "No bet entered", "", "", MsgIcon::None},
            {"0", "No bet entered", "", "", MsgIcon::None},
            {"150", "You must bet in multiples of $100.", "", "150", MsgIcon::Information},
            // One step above the largest raise: the message names the whole stack.
            {"8800", "You've only got $9,900.", "Bet Exceeds Your Chip Stack", "", MsgIcon::Exclamation},
        };
        for (const auto& c : cases) {
            form.txtBetAmount->clear();
            QTest::keyClicks(form.txtBetAmount, c.typed);
            platform.messages.clear();
            QTest::mouseClick(form.cmdOK, Qt::LeftButton);
            QCOMPARE(platform.messages.size(), size_t(1));
            QCOMPARE(platform.messages[0].text, std::string(c.text));
            if (*c.title) QCOMPARE(platform.messages[0].title, std::string(c.title));
            if (c.icon != MsgIcon::Exclamation) QCOMPARE(platform.messages[0].icon, c.icon);
            QCOMPARE(form.txtBetAmount->text(), QString(c.left));
            QVERIFY(form.isVisible() && form.BetAmount == 0);
        }
        QTest::mouseClick(form.cmdBetMax, Qt::LeftButton);
        QCOMPARE(form.txtBetAmount->text(), QString("8700"));
        QVERIFY(form.isVisible());
        QTest::mouseClick(form.cmdOK, Qt::LeftButton);
        QCOMPARE(std::make_pair(form.result(), form.BetAmount), std::make_pair(int(QDialog::Accepted), 9900));
    }

    void enterOnEmptyOrZeroAndCancel() {
        test::ScriptedPlatform platform;
        frmBetAmount form(kBet, platform);
        form.show();
        QTest::keyClick(form.txtBetAmount, Qt::Key_Return);
        QCOMPARE(platform.messages.size(), size_t(1));
        QVERIFY(form.isVisible());
        QTest::keyClicks(form.txtBetAmount, "0");  // "0" and Enter leave as a cancel does, silently
        QTest::keyClick(form.txtBetAmount, Qt::Key_Return);
        QVERIFY(!form.isVisible() && form.BetAmount == 0 && platform.messages.size() == 1);
        frmBetAmount cancelled(kBet, platform);
        cancelled.show();
        QTest::keyClicks(cancelled.txtBetAmount, "500");
        QTest::mouseClick(cancelled.cmdCancel, Qt::LeftButton);
        QCOMPARE(std::make_pair(cancelled.result(), cancelled.BetAmount),
                 std::make_pair(int(QDialog::Rejected), 0));
    }

    void potBreakdownShowsEverySeatAndTheTotal() {
        PotBreakdown b;
        b.name[1] = "Ann";
        b.bet[1] = 1200;
        b.name[2] = "Bob, folded";
        b.bet[2] = 300;
        b.name[5] = "Eve";
        b.bet[5] = 1234500;
        b.total = 1236000;
        frmPotBreakdown form(b);
        QCOMPARE(form.size(), QSize(256, 223));
        QStringList rows;
        for (int i : {10, 1, 2, 3, 5, 9})
            rows << form.lblName[i]->text() + " " + (i == 10 ? "" : form.lblInPot[i]->text());
        QCOMPARE(rows, QStringList({"Pot Breakdown ", "Ann $1,200", "Bob, folded $300", " $0",
                                    "Eve $1,234,500", "Total: $1,236,000"}));
        form.show();
        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void gameOverNamesThePlaceWithItsEnding() {
        for (auto [place, text] : {std::pair<int16_t, const char*>{1, "1st"},
                                   {2, "2nd"},
                                   {3, "3rd"},
                                   {11, "11th"},
                                   {22, "22nd"},
                                   {112, "112th"},
                                   {101, "101st"},
                                   {1000, "1000th"}})
            QCOMPARE(frmGameOver(place).lblFinished->text(), QString("You Finished ") + text);
        frmGameOver form(7);
        QCOMPARE(form.size(), QSize(312, 133));
        QCOMPARE(form.Label1->text() + "|" + form.lblClose->text(), QString("Game Over|[CLOSE]"));
        QVERIFY(form.Label1->font().bold() && form.Label1->font().italic());
        QVERIFY(form.lblClose->geometry().right() < form.width() &&
                form.lblClose->width() >= form.lblClose->fontMetrics().horizontalAdvance("[CLOSE]"));
        form.show();
        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void newGameListsAndTheirChoices() {
        frmNewGame form(3);
        form.show();
        QCOMPARE(form.cbGameType->currentText() + "|" + form.cbPlayers->currentText() + "|" +
                     form.cbSpeed->currentText(),
                 QString("Single Table|80|Slow"));
        QVERIFY(!form.cbPlayers->isEnabled() && !form.cbGameType->isEditable() &&
                !form.cbPlayers->isEditable() && !form.cbSpeed->isEditable());
        form.cbGameType->setCurrentText("Tournament");
        QVERIFY(form.cbPlayers->isEnabled());
        form.cbPlayers->setCurrentText("1,000");
        form.cbSpeed->setCurrentText("Fast");
        QTest::mouseClick(form.lblOK, Qt::LeftButton);
        const NewGameChoices c = form.Choices();
        QCOMPARE(
            std::make_tuple(c.cancelled, c.gameType, c.players, c.speed),
            std::make_tuple(false, std::string("Tournament"), std::string("1,000"), std::string("Fast")));
        frmNewGame again(1);
        again.show();
        QCOMPARE(again.cbSpeed->currentText(), QString("Fast"));
        again.cbGameType->setCurrentText("Tournament");
        again.cbGameType->setCurrentText("Single Table");
        QVERIFY(!again.cbPlayers->isEnabled());
        QTest::mouseClick(again.lblCancel, Qt::LeftButton);
        QVERIFY(again.Choices().cancelled && !again.isVisible());
    }

    void playerNameKeepsTheLastNameAndTakesEnter() {
        frmPlayerName form;
        form.show();
        QCOMPARE(form.txtPlayerName->text(), QString(""));
        QTest::keyClicks(form.txtPlayerName, "Ann \"Ace\" Lee");
        QTest::keyClick(form.txtPlayerName, Qt::Key_Return);
        QVERIFY(!form.isVisible());
        QCOMPARE(form.Entry(), std::string("Ann Ace Lee"));  // a double quote cannot be saved
        form.show();
        QCOMPARE(form.txtPlayerName->text(), QString("Ann Ace Lee"));
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(form.isVisible());
        QTest::mouseClick(form.lblOK, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void splashClosesAtTheSecondTickOrAKey() {
        const std::string folder = QCoreApplication::applicationDirPath().toStdString() + "/";
        frmSplash timed(folder);
        QVERIFY(!timed.timerSplash->isActive());  // not before it can be seen
        timed.show();
        QCOMPARE(Texts({timed.lblVersion, timed.lblCompanyProduct, timed.lblProductName, timed.lblPlatform}),
                 QString("Version 1.1|Corvane|Texas Hold'em|For Windows"));
        QVERIFY(timed.timerSplash->interval() == 1200 && timed.timerSplash->isActive());
        timed.timerSplash_Timer();
        QVERIFY(timed.isVisible());
        timed.timerSplash_Timer();
        QVERIFY(!timed.isVisible() && !timed.timerSplash->isActive());
        frmSplash keyed(folder);
        keyed.show();
        QTest::keyClick(&keyed, Qt::Key_Space);
        QVERIFY(!keyed.isVisible() && !keyed.timerSplash->isActive() && keyed.result() == QDialog::Accepted);
        keyed.timerSplash_Timer();  // a tick after the key finds it closed already
        QVERIFY(!keyed.isVisible());
    }
};

QTEST_MAIN(WindowDialogsTest)
#include "window_dialogs_test.moc"
