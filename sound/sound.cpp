#include "sound/sound.h"

#include <QFile>
#include <QSoundEffect>
#include <QUrl>

namespace holdem {

const char* const SoundBank::kNames[12] = {"BUTTONCLICK", "DEAL",     "WONHAND",    "LOSTHAND",
                                           "MOVED",       "TWOMOVED", "THREEMOVED", "FOURMOVED",
                                           "FIVEMOVED",   "SIXMOVED", "GAMEOVER",   "WIN"};

SoundBank::SoundBank(const std::string& appFolder, QObject* parent) : QObject(parent) {
    QString folder = QString::fromStdString(appFolder) + QStringLiteral("sounds/");
    for (const char* name : kNames) {
        QString path = folder + QString::fromLatin1(name) + QStringLiteral(".wav");
        // A file that is not there is left out: playing it is silence.
        if (!QFile::exists(path)) continue;
        auto* effect = new QSoundEffect(this);
        effect->setSource(QUrl::fromLocalFile(path));
        effects_[name] = effect;
    }
}

SoundBank::~SoundBank() = default;

void SoundBank::PlaySound(const std::string& name) {
    auto it = effects_.find(name);
    if (playing_ && playing_ != (it == effects_.end() ? nullptr : it->second)) playing_->stop();
    if (it == effects_.end()) {
        playing_ = nullptr;
        return;
    }
    QSoundEffect* effect = it->second;
    // An effect that failed to load or found no device plays nothing.
    if (effect->status() == QSoundEffect::Error) {
        playing_ = nullptr;
        return;
    }
    effect->stop();
    effect->play();
    playing_ = effect;
}

bool SoundBank::Loaded(const std::string& name) const {
    auto it = effects_.find(name);
    return it != effects_.end() && it->second->status() != QSoundEffect::Error;
}

}  // namespace holdem
