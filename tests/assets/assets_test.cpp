// Every picture and sound the window loads is there, in the form it expects.
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <QtTest>

namespace {
const QString kAssets = QStringLiteral(HOLDEM_ASSETS);
// The pixels of a picture that pass the test, counted by column.
template <class Test>
std::vector<int> Columns(const QString& name, Test test) {
    const QImage image(kAssets + "pictures/" + name);
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
            {"table.png", {757, 527}},    {"table_winner.png", {758, 517}}, {"arrow_right.png", {34, 16}},
            {"arrow_left.png", {34, 16}}, {"dealer.png", {34, 34}},         {"card_back.png", {73, 97}},
            {"logo.png", {109, 108}},     {"icon.png", {48, 48}},           {"tip.png", {32, 32}},
            {"help1.png", {401, 478}},    {"help2.png", {397, 425}},        {"rules1.png", {406, 365}},
            {"rules2.png", {402, 407}}};
        for (int card = 1; card <= 52; ++card) {
            const QString name = QString("card_%1.png").arg(card, 2, 10, QChar('0'));
            pictures.append({name, {69, 94}});
            const auto red = Columns(name, Red);
            const int count = std::accumulate(red.begin(), red.end(), 0);
            QVERIFY2((card - 1) / 13 % 2 == 0 ? count > 200 : count == 0, qPrintable(name));
        }
        for (const auto& [name, size] : pictures)
            QVERIFY2(QImage(kAssets + "pictures/" + name).size() == size * 2, qPrintable(name));
        for (const char* name : {"arrow_right.png", "arrow_left.png"}) {
            const auto white = Columns(name, White);
            const long heaviest = std::max_element(white.begin(), white.end()) - white.begin();
            QVERIFY((heaviest > long(white.size()) / 2) == (name[6] == 'r'));
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
            QVERIFY2(seconds > length * 0.6 && seconds < length * 1.6, name);
            int peak = 0;
            for (qsizetype i = 0; i + 1 < samples.size(); i += 2)
                peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(samples.constData() + i))));
            QVERIFY2(peak > 8000, name);
        }
    }
};

QTEST_GUILESS_MAIN(AssetsTest)
#include "assets_test.moc"
