// Every picture and sound the window loads is there, in the form it expects.
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <QtTest>

namespace {
const QString kAssets = QStringLiteral(HOLDEM_ASSETS);
QImage Picture(const QString& name) { return QImage(kAssets + "pictures/" + name); }
// Pixels that pass the test, and the column that holds most of them.
template <class Test>
std::pair<int, int> Census(const QImage& image, Test test) {
    int count = 0, best = 0, bestX = 0;
    for (int x = 0, column = 0; x < image.width(); ++x, column = 0) {
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
    // Drawn at twice the listed size; hearts 1-13 and diamonds 27-39 red; each arrow points its way.
    void pictures() {
        QList<QPair<QString, QSize>> pictures = {
            {"table.png", {757, 527}},    {"table_winner.png", {758, 517}}, {"arrow_right.png", {34, 16}},
            {"arrow_left.png", {34, 16}}, {"dealer.png", {34, 34}},         {"card_back.png", {73, 97}},
            {"logo.png", {109, 108}},     {"icon.png", {48, 48}},           {"tip.png", {32, 32}},
            {"help1.png", {401, 478}},    {"help2.png", {397, 425}},        {"rules1.png", {406, 365}},
            {"rules2.png", {402, 407}}};
        for (int card = 1; card <= 52; ++card) {
            const QString name = QString("card_%1.png").arg(card, 2, 10, QChar('0'));
            pictures.append({name, {69, 94}});
            const int red = Census(Picture(name), Red).first;
            QVERIFY2((card - 1) / 13 % 2 == 0 ? red > 200 : red == 0, qPrintable(name));
        }
        for (const auto& [name, size] : pictures)
            QVERIFY2(Picture(name).size() == size * 2, qPrintable(name));
        const QImage right = Picture("arrow_right.png"), left = Picture("arrow_left.png");
        QVERIFY(Census(right, White).second > right.width() / 2 &&
                Census(left, White).second < left.width() / 2);
    }

    // Plain 16-bit mono PCM at its rate, of about its length, and not next to silent.
    void sounds() {
        const std::tuple<const char*, int, double> sounds[] = {
            {"BUTTONCLICK", 22050, 0.049}, {"DEAL", 44100, 0.178},      {"WONHAND", 44100, 0.513},
            {"LOSTHAND", 44100, 0.198},    {"MOVED", 44100, 1.683},     {"TWOMOVED", 44100, 2.981},
            {"THREEMOVED", 44100, 2.542},  {"FOURMOVED", 44100, 2.586}, {"FIVEMOVED", 44100, 2.728},
            {"SIXMOVED", 44100, 2.299},    {"GAMEOVER", 44100, 3.483},  {"WIN", 44100, 4.621}};
        for (const auto& [name, rate, length] : sounds) {
            QFile file(kAssets + "sounds/" + name + ".wav");
            QVERIFY2(file.open(QIODevice::ReadOnly), name);
            const QByteArray bytes = file.readAll();
            QVERIFY(bytes.left(4) == "RIFF" && bytes.mid(8, 4) == "WAVE");
            QByteArray format, samples;
            for (qsizetype at = 12; at + 8 <= bytes.size();) {
                const quint32 size = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
                const QByteArray id = bytes.mid(at, 4), body = bytes.mid(at + 8, size);
                if (id == "fmt ") format = body;
                if (id == "data") samples = body;
                at += 8 + size + (size & 1);
            }
            const auto u16 = [&](int at) { return qFromLittleEndian<quint16>(format.constData() + at); };
            QCOMPARE(
                std::make_tuple(u16(0), u16(2), qFromLittleEndian<quint32>(format.constData() + 4), u16(14)),
                std::make_tuple(quint16(1), quint16(1), quint32(rate), quint16(16)));
            const double seconds = samples.size() / 2.0 / rate;
            QVERIFY2(seconds > length * 0.6 && seconds < length * 1.6,
                     qPrintable(QString("%1 %2 s").arg(name).arg(seconds)));
            int peak = 0;
            for (qsizetype i = 0; i + 1 < samples.size(); i += 2)
                peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(samples.constData() + i))));
            QVERIFY2(peak > 8000, name);
        }
    }
};

QTEST_GUILESS_MAIN(AssetsTest)
#include "assets_test.moc"
