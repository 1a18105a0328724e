// The program: the main window, started in its order, and the event loop.
#include <QApplication>
#include <QIcon>

#include "views/frm_main.h"
#include "views/view_kit.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // These name the per-user data folder.
    QApplication::setOrganizationName(QStringLiteral("Corvane"));
    QApplication::setApplicationName(QStringLiteral("holdem"));

    holdem::frmMain window(QApplication::applicationDirPath().toStdString());
    QPixmap icon = holdem::kit::LoadPicture(window.game.AppFolder, QStringLiteral("icon.png"));
    if (!icon.isNull()) QApplication::setWindowIcon(QIcon(icon));
    window.Start();
    return app.exec();
}
