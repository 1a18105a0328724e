// The program: the main window, started in its order, and the event loop.
#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "views/frm_main.h"
#include "views/view_kit.h"

namespace {

// Resident memory of this process in kB, 0 where the system does not say.
long ResidentKb() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind("VmRSS:", 0) == 0) return std::atol(line.c_str() + 6);
    return 0;
}

// For start-up measurements (tools/window_bench.sh, the install check): once the
// table has been painted, say the memory in use and leave at once, writing no
// file, so that the whole run is the time to the first painted table.
class FirstPaintProbe : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !fired_) {
            fired_ = true;
            QTimer::singleShot(0, [] {
                std::printf("rss-kb: %ld\n", ResidentKb());
                std::fflush(stdout);
                std::_Exit(0);
            });
        }
        return false;
    }

private:
    bool fired_ = false;
};

// The shipped files: <prefix>/share/holdem/ beside an installed <prefix>/bin/,
// found from the executable so that a moved install still works; otherwise the
// executable's own folder, where the build copies them.
std::string DataFolder(bool& installed) {
    const QDir bin(QCoreApplication::applicationDirPath());
    const QString shared = QDir::cleanPath(bin.absoluteFilePath(QStringLiteral("../share/holdem")));
    installed = QFileInfo(shared + QStringLiteral("/gamedata.dat")).isFile();
    return (installed ? shared : bin.absolutePath()).toStdString();
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // These name the per-user data folder.
    QApplication::setOrganizationName(QStringLiteral("Corvane"));
    QApplication::setApplicationName(QStringLiteral("holdem"));

    // Ties the window to its desktop entry and icon where the desktop asks.
    QGuiApplication::setDesktopFileName(QStringLiteral("com.corvane.holdem"));

    bool installed = false;
    holdem::frmMain window(DataFolder(installed));
    window.game.InstalledCopy = installed;
    QPixmap icon = holdem::kit::LoadPicture(window.game.AppFolder, QStringLiteral("icon.png"));
    if (!icon.isNull()) QApplication::setWindowIcon(QIcon(icon));
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--quit-after-first-paint") == 0)
            window.centralWidget()->installEventFilter(new FirstPaintProbe(&window));
    window.Start();
    return app.exec();
}
