// Every picture and sound the window loads is there, in the form it expects.
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <QtTest>
#include <cstdlib>

namespace {

const QString kAssets = QStringLiteral(HOLDEM_ASSETS);

// Pictures are drawn at twice the size the window shows them.
constexpr int kScale = 2;

QImage loadPicture(const QString& name) { return QImage(kAssets + "pictures/" + name); }

// Pixels that are clearly red, as the ink of hearts and diamonds is.
int redPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 200 && c.red() > 150 && c.green() < 80 && c.blue() < 80) ++count;
        }
    }
    return count;
}

// Where the white is tallest, as a share of the width: the back of an arrow's head.
double tallestWhiteColumn(const QImage& image) {
    int best = 0, bestX = 0;
    for (int x = 0; x < image.width(); ++x) {
        int height = 0;
        for (int y = 0; y < image.height(); ++y) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 200 && c.red() > 230 && c.green() > 230 && c.blue() > 230) ++height;
        }
        if (height > best) {
            best = height;
            bestX = x;
        }
    }
    return double(bestX) / image.width();
}

struct Wave {
    quint16 format = 0, channels = 0, bits = 0;
    quint32 rate = 0;
    QByteArray samples;
};

// Reads the fmt and data chunks of a RIFF WAVE file; an empty result if it is not one.
Wave readWave(const QString& path) {
    Wave wave;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return wave;
    const QByteArray bytes = file.readAll();
    if (bytes.size() < 12 || bytes.left(4) != "RIFF" || bytes.mid(8, 4) != "WAVE") return wave;
    qsizetype at = 12;
    while (at + 8 <= bytes.size()) {
        const QByteArray id = bytes.mid(at, 4);
        const quint32 size = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
        const char* body = bytes.constData() + at + 8;
        if (id == "fmt " && size >= 16) {
            wave.format = qFromLittleEndian<quint16>(body);
            wave.channels = qFromLittleEndian<quint16>(body + 2);
            wave.rate = qFromLittleEndian<quint32>(body + 4);
            wave.bits = qFromLittleEndian<quint16>(body + 14);
        } else if (id == "data") {
            wave.samples = bytes.mid(at + 8, size);
        }
        at += 8 + size + (size & 1);
    }
    return wave;
}

int peak(const QByteArray& samples) {
    int most = 0;
    for (qsizetype i = 0; i + 1 < samples.size(); i += 2) {
        most = std::max(most, std::abs(int(qFromLittleEndian<qint16>(samples.constData() + i))));
    }
    return most;
}

}  // namespace

class AssetsTest : public QObject {
    Q_OBJECT

private slots:
    void picture_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("listed");
        const QList<QPair<QString, QSize>> pictures = {
            {"table.png", {757, 527}},    {"table_winner.png", {758, 517}}, {"arrow_right.png", {34, 16}},
            {"arrow_left.png", {34, 16}}, {"dealer.png", {34, 34}},         {"card_back.png", {73, 97}},
            {"logo.png", {109, 108}},     {"icon.png", {48, 48}},           {"tip.png", {32, 32}},
            {"help1.png", {401, 478}},    {"help2.png", {397, 425}},        {"rules1.png", {406, 365}},
            {"rules2.png", {402, 407}},
        };
        for (const auto& [name, size] : pictures) QTest::newRow(qPrintable(name)) << name << size;
        for (int card = 1; card <= 52; ++card) {
            const QString name = QString("card_%1.png").arg(card, 2, 10, QChar('0'));
            QTest::newRow(qPrintable(name)) << name << QSize(69, 94);
        }
    }

    void picture() {
        QFETCH(QString, name);
        QFETCH(QSize, listed);
        const QImage image = loadPicture(name);
        QVERIFY2(!image.isNull(), qPrintable("cannot load " + name));
        QCOMPARE(image.size(), listed * kScale);
    }

    // Hearts 1-13, spades 14-26, diamonds 27-39, clubs 40-52: red and black suits alternate.
    void cardColoursFollowTheNumbering() {
        for (int card = 1; card <= 52; ++card) {
            const bool red = (card - 1) / 13 % 2 == 0;
            const int count = redPixels(loadPicture(QString("card_%1.png").arg(card, 2, 10, QChar('0'))));
            QVERIFY2(red ? count > 200 : count == 0,
                     qPrintable(QString("card %1: %2 red pixels").arg(card).arg(count)));
        }
    }

    void arrowsPointTheirWay() {
        QVERIFY(tallestWhiteColumn(loadPicture("arrow_right.png")) > 0.5);
        QVERIFY(tallestWhiteColumn(loadPicture("arrow_left.png")) < 0.5);
    }

    void sound_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rate");
        QTest::addColumn<double>("shortest");
        QTest::addColumn<double>("longest");
        QTest::newRow("BUTTONCLICK") << "BUTTONCLICK" << 22050 << 0.03 << 0.08;
        QTest::newRow("DEAL") << "DEAL" << 44100 << 0.1 << 0.3;
        QTest::newRow("WONHAND") << "WONHAND" << 44100 << 0.3 << 0.8;
        QTest::newRow("LOSTHAND") << "LOSTHAND" << 44100 << 0.1 << 0.35;
        for (const char* name : {"MOVED", "TWOMOVED", "THREEMOVED", "FOURMOVED", "FIVEMOVED", "SIXMOVED"}) {
            QTest::newRow(name) << name << 44100 << 1.5 << 3.2;
        }
        QTest::newRow("GAMEOVER") << "GAMEOVER" << 44100 << 2.5 << 4.5;
        QTest::newRow("WIN") << "WIN" << 44100 << 3.5 << 5.5;
    }

    void sound() {
        QFETCH(QString, name);
        QFETCH(int, rate);
        QFETCH(double, shortest);
        QFETCH(double, longest);
        const Wave wave = readWave(kAssets + "sounds/" + name + ".wav");
        QCOMPARE(wave.format, quint16(1));  // plain PCM
        QCOMPARE(wave.channels, quint16(1));
        QCOMPARE(wave.bits, quint16(16));
        QCOMPARE(int(wave.rate), rate);
        const double seconds = wave.samples.size() / 2.0 / wave.rate;
        QVERIFY2(seconds >= shortest && seconds <= longest, qPrintable(QString("%1 s").arg(seconds)));
        QVERIFY2(peak(wave.samples) > 8000, "next to silent");
    }
};

QTEST_GUILESS_MAIN(AssetsTest)
#include "assets_test.moc"
