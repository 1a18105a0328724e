// The table at several window sizes under a device pixel ratio of 2 (unless
// QT_SCALE_FACTOR says otherwise): elements at their layout rectangle times the
// scene's one factor, no text over another text, a card or the dealer disc.
#include <QPushButton>
#include <QStyle>

#include "tests/views/window_fixture.h"
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
        v.lblBank[s] = {"1,000,000", true};  // "Chips: $" stays hidden: it abuts the amount
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
        // Texts against texts, and against the cards and discs.
        QList<QWidget*> all = scene->Stage()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (QWidget* a : all)
            for (QWidget* b : all) {
                auto* la = qobject_cast<QLabel*>(a);
                auto* lb = qobject_cast<QLabel*>(b);
                bool thing = b->objectName().startsWith('i');
                if (!la || la->text().isEmpty() || !a->isVisibleTo(scene) || !b->isVisibleTo(scene) ||
                    !(thing || (lb && a < b && !lb->text().isEmpty())))
                    continue;
                QVERIFY2(!TextRect(la).intersects(thing ? b->geometry() : TextRect(lb)),
                         qPrintable(la->text() + " over " + (thing ? b->objectName() : lb->text())));
            }
        test::Shot(w, "scale_" + QString(QTest::currentDataTag()).replace(' ', '_').remove(','));
    }
};

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    WindowScaleTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "window_scale_test.moc"
