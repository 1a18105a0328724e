// Long names and the blinds of a long tournament stay whole on the table and
// in the pot breakdown, while short texts keep the layout's own font.
#include <QtTest>

#include "tests/views/window_hand_fixture.h"
#include "views/frm_pot_breakdown.h"

using namespace holdem;

namespace {
// As long as the name box lets a name be, and wide in every letter.
const std::string kLongName = "Maximilian W. Wolfgang-M";
constexpr int kNamePixels = 13;  // bold 9.75 points

bool Whole(const QLabel* label) {
    return label->fontMetrics().horizontalAdvance(label->text()) <= label->contentsRect().width();
}
}  // namespace

class WindowFitTest : public QObject {
    Q_OBJECT

private slots:
    void longNamesAndLargeBlindsStayWholeOnTheTable() {
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        for (int seat : {1, 5, 7}) w.game.view.lblName[seat] = {kLongName, true};
        w.game.view.lblName[2] = {"Bob", true};
        w.game.view.lblBlind = {"Blinds: $35,000 - $70,000", true};
        w.Redraw();
        w.show();

        QString clipped;
        QVERIFY2(test::NoLabelClipped(w, &clipped), qPrintable(clipped));
        for (int seat : {1, 5, 7}) QVERIFY(w.lblName[seat]->font().pixelSize() < kNamePixels);
        QCOMPARE(w.lblName[2]->font().pixelSize(), kNamePixels);

        // A short name in the same seat gets the full font back.
        w.game.view.lblName[1].text = "Ann";
        w.Redraw();
        QCOMPARE(w.lblName[1]->font().pixelSize(), kNamePixels);
        QVERIFY(Whole(w.lblBlind));
    }

    void theBreakdownShowsALongNameWhole() {
        PotBreakdown breakdown;
        breakdown.name[1] = kLongName;
        breakdown.name[2] = "Bob";
        breakdown.bet[1] = 1234500;
        breakdown.total = 1234500;
        frmPotBreakdown form(breakdown);
        form.show();
        for (int s = 1; s <= 9; ++s) {
            QVERIFY2(Whole(form.lblName[s]), qPrintable(form.lblName[s]->text()));
            QVERIFY2(Whole(form.lblInPot[s]), qPrintable(form.lblInPot[s]->text()));
            QVERIFY(form.rect().contains(form.lblName[s]->geometry()));
        }
        QVERIFY(form.lblName[1]->font().pixelSize() < form.lblName[2]->font().pixelSize());
    }
};

QTEST_MAIN(WindowFitTest)
#include "window_fit_test.moc"
