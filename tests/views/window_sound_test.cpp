// Sound never stops the game: a missing file, an unknown name or a machine
// without an audio device is silence, and a call returns at once.
#include <QDataStream>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "sound/sound.h"

using namespace holdem;

namespace {
// A short PCM, 16-bit, mono tone in a WAVE file.
void WriteTone(const QString& path, int samples) {
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const quint32 rate = 22050;
    out.writeRawData("RIFF", 4);
    out << quint32(36 + samples * 2);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1) << rate << quint32(rate * 2) << quint16(2) << quint16(16);
    out.writeRawData("data", 4);
    out << quint32(samples * 2);
    for (int i = 0; i < samples; ++i) out << qint16((i / 25) % 2 ? 3000 : -3000);
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(data);
}
}  // namespace

class WindowSoundTest : public QObject {
    Q_OBJECT

private slots:
    void missingSoundsAreSilenceAndPresentOnesLoad() {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath("sounds"));
        WriteTone(dir.filePath("sounds/DEAL.wav"), 4000);
        WriteTone(dir.filePath("sounds/WIN.wav"), 8000);
        SoundBank bank(dir.path().toStdString() + "/");
        QVERIFY(!bank.Loaded("GAMEOVER"));
        QVERIFY(!bank.Loaded("NOSUCHSOUND"));
        // Unknown and missing names, and a new sound over a playing one.
        bank.PlaySound("DEAL");
        bank.PlaySound("WIN");
        bank.PlaySound("GAMEOVER");
        bank.PlaySound("NOSUCHSOUND");
        bank.PlaySound("DEAL");
        QCoreApplication::processEvents();
        QCOMPARE(int(std::size(SoundBank::kNames)), 12);
    }

    void aFolderWithoutSoundsIsSilent() {
        SoundBank bank("/nonexistent/folder/");
        for (const char* name : SoundBank::kNames) {
            QVERIFY(!bank.Loaded(name));
            bank.PlaySound(name);
        }
    }
};

QTEST_MAIN(WindowSoundTest)
#include "window_sound_test.moc"
