// Every picture and sound the window loads is there, in the form it expects.
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <QtTest>

namespace {
const QString kAssets = QStringLiteral(HOLDEM_ASSETS);
// The pixels of a picture that pass the test, counted by column.
std::vector<int> Columns(const QImage& image, bool (*test)(QColor)) {
    std::vector<int> columns(image.width());
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y) columns[x] += test(image.pixelColor(x, y));
    return columns;
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
            {"table", {757, 527}},    {"table_winner", {758, 517}}, {"arrow_right", {34, 16}},
            {"arrow_left", {34, 16}}, {"dealer", {34, 34}},         {"card_back", {73, 97}},
            {"logo", {109, 108}},     {"icon", {48, 48}},           {"tip", {32, 32}},
            {"help1", {401, 478}},    {"help2", {397, 425}},        {"rules1", {406, 365}},
            {"rules2", {402, 407}}};
        for (int card = 1; card <= 52; ++card)
            pictures.append({QString("card_%1").arg(card, 2, 10, QChar('0')), {69, 94}});
        for (const auto& [name, size] : pictures) {
            const QImage image(kAssets + "pictures/" + name + ".png");
            QVERIFY2(image.size() == size * 2, qPrintable(name));
            const auto red = Columns(image, Red), white = Columns(image, White);
            const int reds = std::accumulate(red.begin(), red.end(), 0), card = name.mid(5).toInt();
            if (name.startsWith("card_") && card > 0)
                QVERIFY2((card - 1) / 13 % 2 == 0 ? reds > 200 : reds == 0, qPrintable(name));
            if (name.startsWith("arrow"))
                QVERIFY2((std::max_element(white.begin(), white.end()) - white.begin() > image.width() / 2) ==
                             name.endsWith("right"),
                         qPrintable(name));
        }
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
            const QByteArray bytes = file.readAll(), fmt = bytes.mid(bytes.indexOf("fmt ") + 8, 16);
            const QByteArray samples = bytes.mid(bytes.indexOf("data") + 8);
            const auto u16 = [&](int at) { return qFromLittleEndian<quint16>(fmt.constData() + at); };
            QCOMPARE(
                std::make_tuple(bytes.left(4) + bytes.mid(8, 4), u16(0), u16(2),
                                qFromLittleEndian<quint32>(fmt.constData() + 4), u16(14)),
                std::make_tuple(QByteArray("RIFFWAVE"), quint16(1), quint16(1), quint32(rate), quint16(16)));
            const double seconds = samples.size() / 2.0 / rate;
            int peak = 0;
            for (qsizetype i = 0; i + 1 < samples.size(); i += 2)
                peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(samples.constData() + i))));
            QVERIFY2(seconds > length * 0.6 && seconds < length * 1.6 && peak > 8000, name);
        }
    }
};

QTEST_GUILESS_MAIN(AssetsTest)
#include "assets_test.moc"
