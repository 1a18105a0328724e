// Small pieces every form of the window shares: twips placement, the fonts
// that stand in for the original faces, pictures with a drawn fallback, a
// picture box that stretches its picture, and a label that acts as a button.
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>
#include <string>

namespace holdem::kit {

constexpr int kTwipsPerPixel = 15;

struct Twips {
    int left, top, width, height;
};

inline QRect ToPixels(const Twips& t) {
    return QRect(t.left / kTwipsPerPixel, t.top / kTwipsPerPixel, t.width / kTwipsPerPixel,
                 t.height / kTwipsPerPixel);
}
inline void Place(QWidget* w, const Twips& t) { w->setGeometry(ToPixels(t)); }

// Faces standing in for the ones the layout was drawn with. Sizes are points
// at 96 dpi turned into pixels, because the layout itself is in pixels.
inline constexpr const char* kSansFace = "Liberation Sans";    // Arial, MS Sans Serif
inline constexpr const char* kSerifFace = "Liberation Serif";  // Times New Roman
inline constexpr const char* kBookmanFace = "URW Bookman";     // Bookman Old Style
inline constexpr const char* kDisplayFace = "Lobster Two";     // NewZurica
QFont Face(const char* family, double points, bool bold = false, bool italic = false);
inline QFont Sans(double points, bool bold = false, bool italic = false) {
    return Face(kSansFace, points, bold, italic);
}

// A transparent label in the given font, colour and alignment.
void StyleLabel(QLabel* label, const QFont& font, const QColor& colour, Qt::Alignment align);
void SetBackground(QWidget* w, const QColor& colour);
// Widens a label that its text would overflow, keeping the edge or middle
// its alignment names in place.
void GrowToText(QLabel* label);

// AppFolder + "pictures/" + name, or a null pixmap when it cannot be read.
QPixmap LoadPicture(const std::string& appFolder, const QString& name);

// The store of card pictures: faces 1..52 and the back (0). A missing file is
// replaced by a plainly drawn card so the game stays playable.
class CardPictures {
public:
    explicit CardPictures(const std::string& appFolder);
    const QPixmap& Get(int picture) const;

private:
    QPixmap pictures_[53];
};
// A face drawn with QPainter: rank and suit on white, for a missing picture.
QPixmap DrawnCardFace(int card);
QPixmap DrawnCardBack();
QString CardName(int card);  // "A♠" style, for fallbacks and tests

// Stretches its picture to its own size, smoothly and at the screen's pixel
// ratio. With no picture it paints nothing, or its fill colour if one is set.
class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(QWidget* parent = nullptr);
    void setPicture(const QPixmap& picture);
    const QPixmap& picture() const { return picture_; }
    // Painted under a missing picture; an invalid colour paints nothing.
    void setFallback(const QColor& colour) { fallback_ = colour; }
    // Draw the picture at this size from the top left, clipped, instead of
    // stretching it (a form's background picture).
    void setNaturalSize(const QSize& size) { natural_ = size; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QPixmap picture_;
    QPixmap scaled_;
    QColor fallback_;
    QSize natural_;
};

// A label that acts as a button: "[OK]", "[CLOSE]", the pot.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;
signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

QString Q(const std::string& s);
std::string S(const QString& s);

}  // namespace holdem::kit
