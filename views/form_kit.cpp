#include "views/form_kit.h"

#include <QEvent>
#include <QFontMetrics>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace holdem {

namespace {

QFont Face(const char* family, double points, bool bold) {
    QFont font(family);
    font.setPixelSize(static_cast<int>(std::lround(points * 96.0 / 72.0)));
    font.setBold(bold);
    font.setStyleHint(QFont::AnyStyle, QFont::PreferAntialias);
    return font;
}

QImage ReadImage(const std::string& path) {
    QImageReader reader(QString::fromStdString(path));
    reader.setAutoTransform(true);
    return reader.read();
}

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

}  // namespace

QFont SerifFont(double points, bool bold) { return Face("Liberation Serif", points, bold); }
QFont SansFont(double points, bool bold) { return Face("Liberation Sans", points, bold); }

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

void SetBackground(QWidget* widget, const QColor& colour) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, colour);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

void FitCentred(QLabel* label, const QString& widest) {
    const QString& text = widest.isEmpty() ? label->text() : widest;
    int need = QFontMetrics(label->font()).horizontalAdvance(text) + 2 * label->margin() + 2;
    int extra = need - label->width();
    if (extra <= 0) return;
    QRect box = label->geometry();
    label->setGeometry(box.adjusted(-(extra + 1) / 2, 0, extra / 2 + 1, 0));
}

QPixmap LoadPicture(const std::string& path, QSize size) {
    QImage image = ReadImage(path);
    if (image.isNull()) return Placeholder(size);
    return QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QPixmap LoadPictureToFit(const std::string& path, QSize size) {
    QImage image = ReadImage(path);
    if (image.isNull()) return Placeholder(size);
    return QPixmap::fromImage(image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

ClickLabel::ClickLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && isEnabled() && rect().contains(event->position().toPoint()))
        emit clicked();
    QLabel::mouseReleaseEvent(event);
}

void ClickLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange)
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QLabel::changeEvent(event);
}

ColourShape::ColourShape(bool rounded, QWidget* parent) : QWidget(parent), rounded_(rounded) {}

void ColourShape::setColour(const QColor& colour) {
    if (colour == colour_) return;
    colour_ = colour;
    update();
}

void ColourShape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (rounded_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour_);
        qreal radius = height() / 4.0;
        painter.drawRoundedRect(QRectF(rect()), radius, radius);
    } else {
        painter.fillRect(rect(), colour_);
    }
}

void ColourShape::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && isEnabled() && rect().contains(event->position().toPoint()))
        emit clicked();
    QWidget::mouseReleaseEvent(event);
}

}  // namespace holdem
