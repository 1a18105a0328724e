// Sound never stops the game: a missing file, an unknown name or a machine
// without an audio device is silence, and a call returns at once.
#include <QFile>
#include <QtTest>

#include "sound/sound.h"

using namespace holdem;

class WindowSoundTest : public QObject {
    Q_OBJECT

private slots:
    void missingSoundsAreSilenceAndPresentOnesLoad() {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath("sounds"));
        for (const char* name : {"DEAL", "WIN"})
            QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + "/sounds/" + name + ".wav",
                                dir.filePath("sounds/") + name + ".wav"));
        SoundBank bank(dir.path().toStdString() + "/");
        QVERIFY(bank.Loaded("DEAL") && bank.Loaded("WIN") && !bank.Loaded("GAMEOVER") &&
                !bank.Loaded("NOSUCHSOUND"));
        for (const char* name : {"DEAL", "WIN", "GAMEOVER", "NOSUCHSOUND", "DEAL"})
            bank.PlaySound(name);  // each ends the last
        QCoreApplication::processEvents();
        QCOMPARE(int(std::size(SoundBank::kNames)), 12);
        SoundBank none("/nonexistent/folder/");
        for (const char* name : SoundBank::kNames) {
            QVERIFY(!none.Loaded(name));
            none.PlaySound(name);
        }
    }
};

QTEST_MAIN(WindowSoundTest)
#include "window_sound_test.moc"
