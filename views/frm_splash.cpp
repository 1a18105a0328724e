#include "views/frm_splash.h"

#include <QPainter>
#include <QTimer>

namespace holdem {

using kit::Place;

namespace {
constexpr QSize kClient(5970 / kit::kTwipsPerPixel, 4140 / kit::kTwipsPerPixel);
const QColor kNavy(0, 0, 128);
constexpr int kSplashInterval = 1200;
constexpr int kTicksShown = 2;
// The four cards of the fan: the aces.
constexpr int kFanCards[4] = {13, 26, 39, 52};
constexpr int kFanLefts[4] = {1560, 1800, 2040, 2280};

QPixmap DrawnLogo() {
    QPixmap pixmap(218, 216);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::white, 6));
    p.setBrush(QColor(170, 20, 20));
    p.drawEllipse(QRectF(12, 12, 194, 192));
    p.setPen(QPen(Qt::white, 14, Qt::DashLine));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QRectF(30, 30, 158, 156));
    p.setPen(Qt::white);
    p.setFont(kit::Face(kit::kBookmanFace, 40, true));
    p.drawText(pixmap.rect(), Qt::AlignCenter, QStringLiteral("C"));
    return pixmap;
}
}  // namespace

frmSplash::frmSplash(const std::string& appFolder, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setFixedSize(kClient);
    kit::SetBackground(this, kNavy);

    Picture1 = new kit::PictureBox(this);
    QPixmap logo = kit::LoadPicture(appFolder, QStringLiteral("logo.png"));
    Picture1->setPicture(logo.isNull() ? DrawnLogo() : logo);
    Place(Picture1, {240, 120, 1665, 1650});

    kit::CardPictures cards(appFolder);
    kit::PictureBox** images[4] = {&Image1, &Image2, &Image3, &Image4};
    for (int i = 0; i < 4; ++i) {
        *images[i] = new kit::PictureBox(this);
        (*images[i])->setPicture(cards.Get(kFanCards[i]));
        Place(*images[i], {kFanLefts[i], 2160, 1065, 1440});
    }

    auto label = [this](const QString& text, const QFont& font, const kit::Twips& place,
                        Qt::Alignment align) {
        auto* l = new QLabel(text, this);
        kit::StyleLabel(l, font, Qt::white, align | Qt::AlignVCenter);
        Place(l, place);
        return l;
    };
    QFont title = kit::Face(kit::kBookmanFace, 24);
    lblCompanyProduct = label(QStringLiteral("Corvane"), title, {2400, 360, 3030, 570}, Qt::AlignLeft);
    lblProductName = label(QStringLiteral("Texas Hold'em"), title, {2160, 960, 3660, 570}, Qt::AlignLeft);
    lblPlatform =
        label(QStringLiteral("For Windows"), kit::Sans(9.75, true), {4410, 2520, 1395, 255}, Qt::AlignRight);
    lblVersion = label(QString(), kit::Sans(9.75, true), {4605, 2820, 1170, 255}, Qt::AlignRight);

    timerSplash = new QTimer(this);
    timerSplash->setInterval(kSplashInterval);
    connect(timerSplash, &QTimer::timeout, this, [this] { timerSplash_Timer(); });
    lblVersion->setText(QStringLiteral("Version 1.1"));
    setFocusPolicy(Qt::StrongFocus);
}

// The ticks count from the moment the splash is on the screen: on a slow
// start it would otherwise be gone before it was seen.
void frmSplash::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!closed_ && !timerSplash->isActive()) timerSplash->start();
}

void frmSplash::timerSplash_Timer() {
    if (++ticks >= kTicksShown) CloseSplash();
}

void frmSplash::keyPressEvent(QKeyEvent*) { CloseSplash(); }
void frmSplash::mousePressEvent(QMouseEvent*) { CloseSplash(); }

void frmSplash::CloseSplash() {
    // The tick, a key and a click can all come; the first one closes.
    if (closed_) return;
    closed_ = true;
    timerSplash->stop();
    hide();
    accept();
}

}  // namespace holdem
