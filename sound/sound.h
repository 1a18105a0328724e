// The twelve sounds of the game over Qt Multimedia. A call never waits, a new
// sound ends the one playing, and a missing file or audio device is silence.
#pragma once

#include <QObject>
#include <QString>
#include <map>
#include <memory>
#include <string>

class QSoundEffect;

namespace holdem {

class SoundBank : public QObject {
    Q_OBJECT
public:
    // Preloads AppFolder + "sounds/" + name + ".wav" for each of the twelve.
    explicit SoundBank(const std::string& appFolder, QObject* parent = nullptr);
    ~SoundBank() override;

    void PlaySound(const std::string& name);
    // The names that loaded and can be heard.
    bool Loaded(const std::string& name) const;

    static const char* const kNames[12];

private:
    std::map<std::string, QSoundEffect*> effects_;
    QSoundEffect* playing_ = nullptr;
};

}  // namespace holdem
