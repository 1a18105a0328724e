// Small pieces every form of the window shares: twips placement, the fonts
// that stand in for the original faces, label styling and fitting, pictures
// with a drawn fallback, a picture box that stretches its picture, a label
// that acts as a button and a coloured shape that takes clicks.
#pragma once

#include <QColor>
#include <QDialog>
#include <QLabel>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

namespace holdem::kit {

constexpr int kTwipsPerPixel = 15;

struct Twips {
    int left, top, width, height;
};

// Twips to the nearest pixel.
constexpr int Px(int twips) {
    return (twips * 2 + (twips < 0 ? -kTwipsPerPixel : kTwipsPerPixel)) / (2 * kTwipsPerPixel);
}
inline QRect ToPixels(const Twips& t) { return QRect(Px(t.left), Px(t.top), Px(t.width), Px(t.height)); }
inline QRect TwipsRect(int left, int top, int width, int height) {
    return ToPixels({left, top, width, height});
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
inline QFont Serif(double points, bool bold = false) { return Face(kSerifFace, points, bold); }

// Text colour of a widget, with a dimmed version for its disabled state.
void SetTextColour(QWidget* widget, const QColor& colour);
void SetBackground(QWidget* w, const QColor& colour);
// A transparent label in the given font, colour and alignment.
void StyleLabel(QLabel* label, const QFont& font, const QColor& colour, Qt::Alignment align);
// Widens a label that its text (or the widest text it will hold) would
// overflow, keeping the edge or middle its alignment names in place.
void GrowToText(QLabel* label, const QString& widest = QString());
// Gives the label its font, made smaller if need be so that the text fits
// its width: a long name stays whole in a fixed box.
void FitFontToWidth(QLabel* label, const QFont& font);

// AppFolder + "pictures/" + name, or a null pixmap when it cannot be read.
QPixmap LoadPicture(const std::string& appFolder, const QString& name);
// The same scaled smoothly to size, or a plain framed placeholder.
QPixmap LoadPicture(const std::string& appFolder, const QString& name, QSize size,
                    Qt::AspectRatioMode mode = Qt::IgnoreAspectRatio);

// The store of card pictures: faces 1..52 and the back (0), each read when
// first asked for. A missing file is replaced by a plainly drawn card so the
// game stays playable.
class CardPictures {
public:
    explicit CardPictures(const std::string& appFolder) : appFolder_(appFolder) {}
    const QPixmap& Get(int picture) const;

private:
    std::string appFolder_;
    mutable QPixmap pictures_[53];
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

// A label that acts as a button: "[OK]", "[CLOSE]", the pot. It takes a
// click only while enabled and shows the pointing hand while it does.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    explicit ClickLabel(const QString& text = QString(), QWidget* parent = nullptr);
    explicit ClickLabel(QWidget* parent) : ClickLabel(QString(), parent) {}

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
};

// A label that acts as a button, styled and placed in its box, widened if
// its text would not fit.
ClickLabel* MakeClickLabel(QWidget* parent, const QString& text, const QRect& box, const QFont& font,
                           const QColor& colour, Qt::Alignment align = Qt::AlignCenter);

// A filled square or rounded rectangle of one colour; clickable while enabled.
class ColourShape : public QWidget {
    Q_OBJECT
public:
    explicit ColourShape(bool rounded, QWidget* parent = nullptr);
    void setColour(const QColor& colour);
    QColor colour() const { return colour_; }

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool rounded_;
    QColor colour_{Qt::black};
};

// Runs action on key (and on the keypad's Enter too when key is Return)
// while the dialog or a widget in it has the keyboard.
void OnKey(QWidget* dialog, Qt::Key key, const std::function<void()>& action);
// The keys of a paged form: PageDown and PageUp do what a click on next or
// previous does, End and Home repeat it to either end, Enter closes the form.
void PagingKeys(QDialog* form, ClickLabel* next, ClickLabel* previous);
// A form whose caption is to show no text: an empty one would show the
// program's name instead.
void SetBlankTitle(QWidget* form);
// Puts a dialog over the middle of the window it belongs to, kept on the
// window's screen.
void CentreOver(QWidget* dialog, const QWidget* window);

QString Q(const std::string& s);
std::string S(const QString& s);

}  // namespace holdem::kit
