// The few pieces the small forms share: twips geometry, the two faces that
// stand in for the Windows ones, labels that act as buttons, coloured shapes,
// and pictures that never fail to load.
#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <string>

namespace holdem {

constexpr int kTwipsPerPixel = 15;

inline int Px(int twips) { return (twips * 2 + kTwipsPerPixel) / (2 * kTwipsPerPixel); }
inline QRect TwipsRect(int left, int top, int width, int height) {
    return QRect(Px(left), Px(top), Px(width), Px(height));
}

// "Liberation Serif" stands for Times New Roman, "Liberation Sans" for Arial
// and MS Sans Serif. Sizes are in points at 96 pixels to the inch.
QFont SerifFont(double points, bool bold = false);
QFont SansFont(double points, bool bold = false);

// Text colour of a label, with a dimmed version for its disabled state.
void SetTextColour(QWidget* widget, const QColor& colour);
void SetBackground(QWidget* widget, const QColor& colour);

// Widens a centred label about its centre when the given text (its own by
// default) is wider than the box: the faces that stand in run a little wider.
void FitCentred(QLabel* label, const QString& widest = QString());

// The picture at path scaled smoothly to size; a plain framed placeholder
// when the file is missing or unreadable.
QPixmap LoadPicture(const std::string& path, QSize size);
// The picture scaled to fit inside size with its proportions kept.
QPixmap LoadPictureToFit(const std::string& path, QSize size);

// A label in square brackets that acts as a button: it takes a click only
// while enabled and shows the pointing hand while it does.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    explicit ClickLabel(const QString& text, QWidget* parent = nullptr);

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
};

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

}  // namespace holdem
