#include "views/view_kit.h"

#include <QEvent>
#include <QFile>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <cmath>

#include "engine/common.h"

namespace holdem::kit {

namespace {
constexpr double kPixelsPerPoint = 96.0 / 72.0;
// Pictures are drawn at twice their listed size; the fallback cards match.
constexpr int kCardWidth2x = 138;
constexpr int kCardHeight2x = 188;
const char* const kRanks[] = {"", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K", "A"};
// Hearts, spades, diamonds, clubs, as the picture numbers run.
const char16_t kSuits[] = {u'\u2665', u'\u2660', u'\u2666', u'\u2663'};
// The smallest a fitted font may get, in pixels; below it text is clipped.
constexpr int kSmallestFitPixels = 8;

QPixmap Placeholder(QSize size) {
    QPixmap pixmap(size.expandedTo(QSize(1, 1)));
    pixmap.fill(QColor(192, 192, 192));
    QPainter painter(&pixmap);
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(0, 0, pixmap.width() - 1, pixmap.height() - 1);
    painter.drawLine(0, 0, pixmap.width() - 1, pixmap.height() - 1);
    painter.drawLine(0, pixmap.height() - 1, pixmap.width() - 1, 0);
    return pixmap;
}

bool LeftClickInside(const QWidget* widget, const QMouseEvent* event) {
    return event->button() == Qt::LeftButton && widget->isEnabled() &&
           widget->rect().contains(event->position().toPoint());
}
}  // namespace

void OnKey(QWidget* dialog, Qt::Key key, const std::function<void()>& action) {
    auto* shortcut = new QShortcut(QKeySequence(key), dialog);
    QObject::connect(shortcut, &QShortcut::activated, dialog, action);
    if (key == Qt::Key_Return) OnKey(dialog, Qt::Key_Enter, action);
}

void PagingKeys(QDialog* form, ClickLabel* next, ClickLabel* previous) {
    auto turn = [](ClickLabel* label, bool toEnd) {
        return [label, toEnd] {
            do {
                if (!label->isEnabled()) break;
                emit label->clicked();
            } while (toEnd);
        };
    };
    OnKey(form, Qt::Key_PageDown, turn(next, false));
    OnKey(form, Qt::Key_PageUp, turn(previous, false));
    OnKey(form, Qt::Key_End, turn(next, true));
    OnKey(form, Qt::Key_Home, turn(previous, true));
    OnKey(form, Qt::Key_Return, [form] { form->accept(); });
}

void SetBlankTitle(QWidget* form) { form->setWindowTitle(QStringLiteral(" ")); }

void CentreOver(QWidget* dialog, const QWidget* window) {
    if (!window || !window->isVisible()) return;
    QRect frame = window->frameGeometry();
    QRect box(QPoint(0, 0), dialog->frameGeometry().size().expandedTo(dialog->size()));
    box.moveCenter(frame.center());
    if (const QScreen* screen = window->screen()) {
        QRect room = screen->availableGeometry();
        box.moveLeft(std::clamp(box.left(), room.left(), std::max(room.left(), room.right() - box.width())));
        box.moveTop(std::clamp(box.top(), room.top(), std::max(room.top(), room.bottom() - box.height())));
    }
    dialog->move(box.topLeft());
}

QString Q(const std::string& s) { return QString::fromStdString(s); }
std::string S(const QString& s) { return s.toStdString(); }

QFont Face(const char* family, double points, bool bold, bool italic) {
    QFont font(QString::fromLatin1(family));
    font.setPixelSize(static_cast<int>(std::lround(points * kPixelsPerPoint)));
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

void SetTextColour(QWidget* widget, const QColor& colour) {
    QPalette palette = widget->palette();
    for (auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::WindowText, colour);
        palette.setColor(group, QPalette::Text, colour);
    }
    QColor dim = colour.lightness() > 96 ? colour.darker(250) : QColor(128, 128, 128);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, dim);
    palette.setColor(QPalette::Disabled, QPalette::Text, dim);
    widget->setPalette(palette);
}

void SetBackground(QWidget* w, const QColor& colour) {
    QPalette pal = w->palette();
    pal.setColor(QPalette::Window, colour);
    w->setPalette(pal);
    w->setAutoFillBackground(true);
}

void StyleLabel(QLabel* label, const QFont& font, const QColor& colour, Qt::Alignment align) {
    label->setFont(font);
    SetTextColour(label, colour);
    label->setAlignment(align);
    label->setAutoFillBackground(false);
}

void GrowToText(QLabel* label, const QString& widest) {
    const QString& text = widest.isEmpty() ? label->text() : widest;
    QFontMetrics metrics(label->font());
    int needed = metrics.horizontalAdvance(text) + 2 * label->margin() + 2;
    QRect box = label->geometry();
    if (needed <= box.width()) return;
    int left = box.left();
    if (label->alignment() & Qt::AlignHCenter)
        left = box.center().x() + 1 - needed / 2;
    else if (label->alignment() & Qt::AlignRight)
        left = box.right() + 1 - needed;
    label->setGeometry(left, box.top(), needed, std::max(box.height(), metrics.height()));
}

void FitFontToWidth(QLabel* label, const QFont& font) {
    QFont fitted = font;
    int room = label->contentsRect().width() - 2 * label->margin();
    while (fitted.pixelSize() > kSmallestFitPixels &&
           QFontMetrics(fitted).horizontalAdvance(label->text()) > room)
        fitted.setPixelSize(fitted.pixelSize() - 1);
    if (label->font() != fitted) label->setFont(fitted);
}

QPixmap LoadPicture(const std::string& appFolder, const QString& name) {
    QString path = Q(appFolder) + QStringLiteral("pictures/") + name;
    QPixmap pixmap;
    if (QFile::exists(path)) pixmap.load(path);
    return pixmap;
}

QPixmap LoadPicture(const std::string& appFolder, const QString& name, QSize size, Qt::AspectRatioMode mode) {
    QPixmap pixmap = LoadPicture(appFolder, name);
    if (pixmap.isNull()) return Placeholder(size);
    return pixmap.scaled(size, mode, Qt::SmoothTransformation);
}

QString CardName(int card) {
    if (card < 1 || card > kDeckSize) return {};
    return QString::fromLatin1(kRanks[RankOf(card)]) + QChar(kSuits[SuitOf(card)]);
}

QPixmap DrawnCardFace(int card) {
    QPixmap pixmap(kCardWidth2x, kCardHeight2x);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(90, 90, 90), 2));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(1, 1, kCardWidth2x - 2, kCardHeight2x - 2), 10, 10);
    bool red = SuitOf(card) == 0 || SuitOf(card) == 2;
    p.setPen(red ? QColor(200, 0, 0) : Qt::black);
    QFont corner = Face(kSansFace, 22, true);
    p.setFont(corner);
    p.drawText(QRect(8, 4, 60, 34), Qt::AlignLeft | Qt::AlignTop, QString::fromLatin1(kRanks[RankOf(card)]));
    p.drawText(QRect(8, 36, 40, 34), Qt::AlignLeft | Qt::AlignTop, QString(QChar(kSuits[SuitOf(card)])));
    p.setFont(Face(kSansFace, 54));
    p.drawText(QRect(0, 50, kCardWidth2x, kCardHeight2x - 50), Qt::AlignCenter,
               QString(QChar(kSuits[SuitOf(card)])));
    return pixmap;
}

QPixmap DrawnCardBack() {
    QPixmap pixmap(kCardWidth2x, kCardHeight2x);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::white, 4));
    p.setBrush(QColor(20, 40, 140));
    p.drawRoundedRect(QRectF(2, 2, kCardWidth2x - 4, kCardHeight2x - 4), 10, 10);
    p.setPen(QPen(QColor(120, 140, 220), 2));
    for (int d = -kCardHeight2x; d < kCardWidth2x + kCardHeight2x; d += 14) {
        p.drawLine(QPointF(10 + d, 10), QPointF(10 + d + kCardHeight2x - 20, kCardHeight2x - 10));
        p.drawLine(QPointF(10 + d, kCardHeight2x - 10), QPointF(10 + d + kCardHeight2x - 20, 10));
    }
    return pixmap;
}

const QPixmap& CardPictures::Get(int picture) const {
    int n = picture >= 1 && picture <= kDeckSize ? picture : 0;
    QPixmap& pixmap = pictures_[n];
    if (pixmap.isNull()) {
        QString name = n == 0 ? QStringLiteral("card_back.png")
                              : QStringLiteral("card_%1.png").arg(n, 2, 10, QChar('0'));
        pixmap = LoadPicture(appFolder_, name);
        if (pixmap.isNull()) pixmap = n == 0 ? DrawnCardBack() : DrawnCardFace(n);
    }
    return pixmap;
}

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {}

void PictureBox::setPicture(const QPixmap& picture) {
    if (picture.cacheKey() == picture_.cacheKey()) return;
    picture_ = picture;
    scaled_ = QPixmap();
    update();
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QSize target = natural_.isValid() ? natural_ : size();
    if (picture_.isNull()) {
        if (fallback_.isValid()) p.fillRect(rect(), fallback_);
        return;
    }
    // Scale once per size with a smooth filter, at the device's pixel ratio.
    qreal ratio = devicePixelRatioF();
    QSize device = target * ratio;
    if (scaled_.isNull() || scaled_.size() != device) {
        scaled_ = picture_.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        scaled_.setDevicePixelRatio(ratio);
    }
    p.drawPixmap(QPoint(0, 0), scaled_);
}

ClickLabel::ClickLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (LeftClickInside(this, event)) emit clicked();
    QLabel::mouseReleaseEvent(event);
}

void ClickLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange)
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QLabel::changeEvent(event);
}

ClickLabel* MakeClickLabel(QWidget* parent, const QString& text, const QRect& box, const QFont& font,
                           const QColor& colour, Qt::Alignment align) {
    auto* label = new ClickLabel(text, parent);
    StyleLabel(label, font, colour, align | Qt::AlignVCenter);
    label->setGeometry(box);
    GrowToText(label);
    return label;
}

ColourShape::ColourShape(bool rounded, QWidget* parent) : QWidget(parent), rounded_(rounded) {}

void ColourShape::setColour(const QColor& colour) {
    if (colour == colour_) return;
    colour_ = colour;
    update();
}

void ColourShape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!rounded_) {
        painter.fillRect(rect(), colour_);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour_);
    qreal radius = height() / 4.0;
    painter.drawRoundedRect(QRectF(rect()), radius, radius);
}

void ColourShape::mouseReleaseEvent(QMouseEvent* event) {
    if (LeftClickInside(this, event)) emit clicked();
    QWidget::mouseReleaseEvent(event);
}

}  // namespace holdem::kit
