// Every picture and sound the window loads is there, in the form it expects.
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <QtTest>

namespace {

const QString kAssets = QStringLiteral(HOLDEM_ASSETS);

QImage Picture(const QString& name) { return QImage(kAssets + "pictures/" + name); }
QString CardFile(int card) { return QString("card_%1.png").arg(card, 2, 10, QChar('0')); }

// Pixels that pass the test, and the column where most of them stand.
template <class Test>
std::pair<int, int> Census(const QImage& image, Test test) {
    int count = 0, best = 0, bestX = 0;
    for (int x = 0; x < image.width(); ++x) {
        int column = 0;
        for (int y = 0; y < image.height(); ++y) column += test(image.pixelColor(x, y));
        count += column;
        if (column > best) best = column, bestX = x;
    }
    return {count, bestX};
}
bool Red(QColor c) { return c.alpha() > 200 && c.red() > 150 && c.green() < 80 && c.blue() < 80; }
bool White(QColor c) { return c.alpha() > 200 && c.red() > 230 && c.green() > 230 && c.blue() > 230; }

}  // namespace

class AssetsTest : public QObject {
    Q_OBJECT

private slots:
    // Pictures are drawn at twice the size the window shows them.
    void picturesLoadAtTwiceTheirListedSize() {
        QList<QPair<QString, QSize>> pictures = {
            {"table.png", {757, 527}},    {"table_winner.png", {758, 517}}, {"arrow_right.png", {34, 16}},
            {"arrow_left.png", {34, 16}}, {"dealer.png", {34, 34}},         {"card_back.png", {73, 97}},
            {"logo.png", {109, 108}},     {"icon.png", {48, 48}},           {"tip.png", {32, 32}},
            {"help1.png", {401, 478}},    {"help2.png", {397, 425}},        {"rules1.png", {406, 365}},
            {"rules2.png", {402, 407}}};
        for (int card = 1; card <= 52; ++card) pictures.append({CardFile(card), {69, 94}});
        for (const auto& [name, size] : pictures)
            QVERIFY2(Picture(name).size() == size * 2, qPrintable(name));
    }

    // Hearts 1-13, spades 14-26, diamonds 27-39, clubs 40-52; arrows point their way.
    void cardColoursAndArrows() {
        for (int card = 1; card <= 52; ++card) {
            const int red = Census(Picture(CardFile(card)), Red).first;
            QVERIFY2((card - 1) / 13 % 2 == 0 ? red > 200 : red == 0,
                     qPrintable(QString("card %1: %2 red").arg(card).arg(red)));
        }
        const QImage right = Picture("arrow_right.png"), left = Picture("arrow_left.png");
        QVERIFY(Census(right, White).second > right.width() / 2 &&
                Census(left, White).second < left.width() / 2);
    }

    // Plain 16-bit mono PCM, of its rate and length, and not next to silent.
    void sound_data() {
        QTest::addColumn<int>("rate");
        QTest::addColumn<double>("shortest");
        QTest::addColumn<double>("longest");
        QTest::newRow("BUTTONCLICK") << 22050 << 0.03 << 0.08;
        QTest::newRow("DEAL") << 44100 << 0.1 << 0.3;
        QTest::newRow("WONHAND") << 44100 << 0.3 << 0.8;
        QTest::newRow("LOSTHAND") << 44100 << 0.1 << 0.35;
        for (const char* name : {"MOVED", "TWOMOVED", "THREEMOVED", "FOURMOVED", "FIVEMOVED", "SIXMOVED"})
            QTest::newRow(name) << 44100 << 1.5 << 3.2;
        QTest::newRow("GAMEOVER") << 44100 << 2.5 << 4.5;
        QTest::newRow("WIN") << 44100 << 3.5 << 5.5;
    }
    void sound() {
        QFETCH(int, rate);
        QFETCH(double, shortest);
        QFETCH(double, longest);
        QFile file(kAssets + "sounds/" + QTest::currentDataTag() + ".wav");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.left(4) == "RIFF" && bytes.mid(8, 4) == "WAVE");
        quint16 format = 0, channels = 0, bits = 0;
        quint32 rateRead = 0;
        QByteArray samples;
        for (qsizetype at = 12; at + 8 <= bytes.size();) {
            const quint32 size = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
            const char* body = bytes.constData() + at + 8;
            if (bytes.mid(at, 4) == "fmt " && size >= 16) {
                format = qFromLittleEndian<quint16>(body);
                channels = qFromLittleEndian<quint16>(body + 2);
                rateRead = qFromLittleEndian<quint32>(body + 4);
                bits = qFromLittleEndian<quint16>(body + 14);
            } else if (bytes.mid(at, 4) == "data") {
                samples = bytes.mid(at + 8, size);
            }
            at += 8 + size + (size & 1);
        }
        QCOMPARE(std::make_tuple(format, channels, bits, int(rateRead)),
                 std::make_tuple(quint16(1), quint16(1), quint16(16), rate));
        const double seconds = samples.size() / 2.0 / rate;
        QVERIFY2(seconds >= shortest && seconds <= longest, qPrintable(QString("%1 s").arg(seconds)));
        int peak = 0;
        for (qsizetype i = 0; i + 1 < samples.size(); i += 2)
            peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(samples.constData() + i))));
        QVERIFY2(peak > 8000, "next to silent");
    }
};

QTEST_GUILESS_MAIN(AssetsTest)
#include "assets_test.moc"
