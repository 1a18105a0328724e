#include "views/qt_platform.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

#include "sound/sound.h"
#include "views/frm_about.h"
#include "views/frm_bet_amount.h"
#include "views/frm_casino_floor.h"
#include "views/frm_game_over.h"
#include "views/frm_help.h"
#include "views/frm_main.h"
#include "views/frm_new_game.h"
#include "views/frm_player_name.h"
#include "views/frm_pot_breakdown.h"
#include "views/frm_rankings.h"
#include "views/frm_rules.h"
#include "views/frm_splash.h"
#include "views/frm_tip.h"
#include "views/view_kit.h"

namespace holdem {

using kit::Q;
using kit::S;

std::string QtFileFilter(const std::string& filter) {
    // Pairs of description and pattern, separated by '|'.
    QStringList parts = Q(filter).split(QChar('|'));
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString description = parts[i];
        QString patterns = parts[i + 1];
        patterns.replace(QChar(';'), QChar(' '));
        out << (description.contains(QChar('(')) ? description : description + " (" + patterns + ")");
    }
    if (out.isEmpty() && !filter.empty()) out << Q(filter);
    return S(out.join(QStringLiteral(";;")));
}

std::string DefaultSuffix(const std::string& filter) {
    QStringList parts = Q(filter).split(QChar('|'));
    if (parts.size() < 2) return {};
    QString pattern = parts[1].split(QChar(';')).first().trimmed();
    int dot = pattern.lastIndexOf(QChar('.'));
    if (dot < 0 || pattern.mid(dot + 1).contains(QChar('*'))) return {};
    return S(pattern.mid(dot + 1));
}

namespace {

// An installed copy's folder is shared and read-only: saved games start in the
// user's documents instead.
QString DialogFolder(const Game& game, const std::string& folder) {
    if (!game.InstalledCopy) return Q(folder);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

}  // namespace

QtPlatform::QtPlatform(frmMain* window) : window_(window) {}
QtPlatform::~QtPlatform() = default;

QWidget* QtPlatform::Owner() {
    window_->RedrawWidgets();
    return window_;
}

// Every form comes up over the table, wherever the window stands.
int QtPlatform::Run(QDialog& form) {
    form.ensurePolished();
    kit::CentreOver(&form, window_);
    return form.exec();
}

MsgAnswer QtPlatform::MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                                 MsgButtons buttons) {
    QMessageBox::Icon qtIcon = QMessageBox::NoIcon;
    if (icon == MsgIcon::Question) qtIcon = QMessageBox::Question;
    if (icon == MsgIcon::Information) qtIcon = QMessageBox::Information;
    if (icon == MsgIcon::Exclamation) qtIcon = QMessageBox::Warning;
    QMessageBox::StandardButtons qtButtons = QMessageBox::Ok;
    if (buttons == MsgButtons::YesNo) qtButtons = QMessageBox::Yes | QMessageBox::No;
    if (buttons == MsgButtons::YesNoCancel)
        qtButtons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    // A refusal of the bet dialog stands over that dialog, not the table.
    QWidget* parent = Owner();
    if (QWidget* modal = QApplication::activeModalWidget()) parent = modal;
    QMessageBox box(qtIcon, Q(title), Q(text), qtButtons, parent);
    if (buttons != MsgButtons::OK) box.setDefaultButton(QMessageBox::Yes);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return MsgAnswer::Yes;
        case QMessageBox::No:
            return MsgAnswer::No;
        case QMessageBox::Cancel:
            return MsgAnswer::Cancel;
        default:
            return buttons == MsgButtons::YesNoCancel ? MsgAnswer::Cancel : MsgAnswer::OK;
    }
}

std::optional<std::string> QtPlatform::OpenFileDialog(const FileDialogRequest& request) {
    QFileDialog dialog(Owner(), Q(request.title), DialogFolder(window_->game, request.folder),
                       Q(QtFileFilter(request.filter)));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return S(dialog.selectedFiles().first());
}

std::optional<std::string> QtPlatform::SaveFileDialog(const FileDialogRequest& request) {
    QString suffix = Q(DefaultSuffix(request.filter));
    QString folder = DialogFolder(window_->game, request.folder);
    for (;;) {
        QFileDialog dialog(Owner(), Q(request.title), folder, Q(QtFileFilter(request.filter)));
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        // Asked below, once the extension is on the name.
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
        QString path = dialog.selectedFiles().first();
        if (!suffix.isEmpty() && !path.endsWith("." + suffix, Qt::CaseInsensitive)) path += "." + suffix;
        QFileInfo info(path);
        if (!info.exists()) return S(path);
        QMessageBox::StandardButton answer = QMessageBox::warning(
            window_, Q(request.title),
            QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(info.fileName()),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
        if (answer == QMessageBox::Yes) return S(path);
        folder = info.absolutePath();
    }
}

void QtPlatform::PlaySound(const std::string& name) {
    if (!sound_) sound_ = std::make_unique<SoundBank>(window_->game.AppFolder);
    sound_->PlaySound(name);
}

void QtPlatform::Pause() {
    window_->RedrawWidgets();
    window_->PauseTable();
}

int32_t QtPlatform::ShowBetAmount(const BetAmountRequest& request) {
    frmBetAmount form(request, *this, Owner());
    Run(form);
    return form.BetAmount;
}

NewGameChoices QtPlatform::ShowNewGame(int16_t gameSpeed) {
    frmNewGame form(gameSpeed, Owner());
    Run(form);
    return form.Choices();
}

std::string QtPlatform::ShowPlayerName() {
    if (!playerName_) playerName_ = new frmPlayerName(window_);
    Owner();
    Run(*playerName_);
    return playerName_->Entry();
}

void QtPlatform::ShowGameOver(int16_t userFinishPlace) {
    frmGameOver form(userFinishPlace, Owner());
    Run(form);
}

void QtPlatform::ShowPotBreakdown(const PotBreakdown& breakdown) {
    frmPotBreakdown form(breakdown, Owner());
    Run(form);
}

void QtPlatform::ShowStandings(const std::string& standingsPath) {
    frmRankings form(standingsPath, Owner());
    Run(form);
}

void QtPlatform::ShowFloor(const std::string& standingsPath) {
    frmCasinoFloor form(standingsPath, Owner());
    Run(form);
}

void QtPlatform::ShowInfo(InfoForm form) {
    const std::string& folder = window_->game.AppFolder;
    switch (form) {
        case InfoForm::Splash: {
            frmSplash splash(folder, Owner());
            Run(splash);
            break;
        }
        case InfoForm::Tip: {
            frmTip tip(window_->game, Owner());
            Run(tip);
            // The tip's check box moves the menu's check mark.
            window_->RedrawWidgets();
            break;
        }
        case InfoForm::Help:
            if (!help_) help_ = new frmHelp(folder, window_);
            Owner();
            Run(*help_);
            break;
        case InfoForm::Rules:
            if (!rules_) rules_ = new frmRules(folder, window_);
            Owner();
            Run(*rules_);
            break;
        case InfoForm::About: {
            frmAbout about(folder, Owner());
            Run(about);
            break;
        }
    }
}

}  // namespace holdem
