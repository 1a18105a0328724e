// The table at two window sizes, under a device pixel ratio of 2 (set before
// the application starts unless QT_SCALE_FACTOR is given): every element at its
// layout rectangle times the scene's one factor, and no text over another
// text, a card or the dealer disc. Grabs go to the build's screenshots/.
#include <QDir>
#include <QPushButton>
#include <QStyle>
#include <QtTest>

#include "tests/views/window_hand_fixture.h"
#include "views/table_scene.h"

using namespace holdem;

namespace {

// Where a label's text is inked, in the scene's stage.
QRect TextRect(QLabel* label) {
    const QFontMetrics m = label->fontMetrics();
    QSize box(m.horizontalAdvance(label->text()), m.height());
    QRect at = QStyle::alignedRect(Qt::LeftToRight, label->alignment(), box, label->contentsRect());
    return m.tightBoundingRect(label->text())
        .translated(at.left(), at.top() + m.ascent())
        .translated(label->pos());
}

// Every seat full, with the longest words a seat can show; the disc at every
// seat, as if each were the button.
void FillTable(frmMain& w, bool showdown) {
    View& v = w.game.view;
    for (int s = 1; s <= kSeats; ++s) {
        v.lblName[s] = {"Maximilian Fitzgerald", true};
        v.lblBankDollarSign[s] = {"Chips: $", true};
        v.lblBank[s] = {"1,000,000", true};
        v.lblBet[s] = {showdown ? "Straight Flush" : "Called $99,900 All In", true};
        v.lblPaid[s] = {"Paid $1,000,000", showdown};
        v.iButton[s].visible = true;
        v.icard[s] = v.icard[s + 8] = {"", true, true, false, int16_t(showdown ? s : 0)};
    }
    for (int k = 17; k <= 21; ++k) v.icard[k] = {"", showdown, true, false, int16_t(k)};
    v.lblPot = {"1,000,000", true};
    v.lblPotLabel = {"Pot: $", true};
    v.lblBlind = {"Blinds: $35,000 - $70,000", !showdown};
    v.lblGoodLuck = {"Final Table!", !showdown};
    w.Redraw();
}

}  // namespace

class WindowScaleTest : public QObject {
    Q_OBJECT

private slots:
    void theSceneScalesAndNoTextCoversAnother_data() {
        QTest::addColumn<QSize>("client");
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<bool>("showdown");
        QTest::newRow("as laid out, dealing") << QSize(755, 508) << 1.0 << false;
        QTest::newRow("as laid out, showdown") << QSize(755, 508) << 1.0 << true;
        QTest::newRow("wide, showdown") << QSize(1400, 800) << 800 / 508.0 << true;
        QTest::newRow("twice, dealing") << QSize(1510, 1016) << 2.0 << false;
        QTest::newRow("smaller than laid out") << QSize(600, 400) << 1.0 << true;
    }
    void theSceneScalesAndNoTextCoversAnother() {
        QFETCH(QSize, client);
        QFETCH(qreal, scale);
        QFETCH(bool, showdown);
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        w.show();
        w.resize(w.size() + client - w.centralWidget()->size());
        QTRY_COMPARE(w.centralWidget()->size(), client.expandedTo(TableScene::kBaseSize));
        FillTable(w, showdown);
        TableScene* scene = w.scene();
        QCOMPARE(scene->Scale(), scale);
        QCOMPARE(w.icard[17]->geometry(), scene->Map(kit::ToPixels({3000, 3120, 1065, 1440})));
        QCOMPARE(w.cmdPlay[4]->geometry(), scene->Map(kit::ToPixels({6600, 6600, 975, 375})));
        QCOMPARE(w.lblPot->font().pixelSize(), qRound(18 * scale));

        QList<QLabel*> texts;
        for (QLabel* l : scene->Stage()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
            if (l->isVisibleTo(scene->Stage()) && !l->text().isEmpty()) texts << l;
        QList<QWidget*> things;  // cards and discs
        for (int k = 1; k <= 21; ++k) things << w.icard[k];
        for (int s = 1; s <= kSeats; ++s) things << w.iButton[s];
        for (QLabel* a : texts) {
            for (QLabel* b : texts)
                if (a < b && !(a->text() == "Chips: $" && b->text() == "1,000,000") &&
                    !(b->text() == "Chips: $" && a->text() == "1,000,000"))
                    QVERIFY2(!TextRect(a).intersects(TextRect(b)),
                             qPrintable(a->text() + " over " + b->text()));
            for (QWidget* t : things)
                if (t->isVisibleTo(scene->Stage()))
                    QVERIFY2(!TextRect(a).intersects(t->geometry()),
                             qPrintable(a->text() + " over " + t->objectName()));
        }
        QVERIFY(test::NoLabelClipped(w));
        const QString folder = QCoreApplication::applicationDirPath() + "/../screenshots";
        QDir().mkpath(folder);
        QString name = QString(QTest::currentDataTag()).replace(' ', '_').remove(',');
        QVERIFY(w.grab().save(folder + "/scale_" + name + ".png"));
    }
};

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    WindowScaleTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "window_scale_test.moc"
