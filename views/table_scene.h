// The table as one scene: every element keeps its rectangle of the original
// 755 x 508 pixel layout, and the scene maps that layout onto whatever room
// the window gives it with one scale factor (proportions kept, never below 1),
// centred on the felt colour. A widget placed with Place() moves, resizes and
// rescales its font with the scene; nothing else needs to know the factor.
#pragma once

#include <QFont>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

#include "views/view_kit.h"

namespace holdem {

class TableScene : public QWidget {
    Q_OBJECT
public:
    static constexpr QSize kBaseSize{11325 / kit::kTwipsPerPixel, 7620 / kit::kTwipsPerPixel};

    explicit TableScene(const QColor& ground, QWidget* parent = nullptr);

    // The parent of every element of the table: the scaled layout's area.
    QWidget* Stage() const { return stage_; }

    // Keeps w at this rectangle of the layout (relative to its parent, which
    // is the stage or a widget placed on it) and its current font in scale.
    void Place(QWidget* w, const kit::Twips& place) { Place(w, kit::ToPixels(place)); }
    void Place(QWidget* w, const QRect& layoutPixels);
    // Keeps only the font in scale: the owner places the widget itself.
    void ScaleFont(QWidget* w);

    qreal Scale() const { return scale_; }
    QRect Map(const QRect& layoutPixels) const;
    QSize Map(const QSize& layoutPixels) const;
    QFont Map(const QFont& layoutFont) const;

    // Called after every change of scale, for what depends on the text shown.
    std::function<void()> onRescaled;

    QSize sizeHint() const override { return kBaseSize; }
    QSize minimumSizeHint() const override { return kBaseSize; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Item {
        QPointer<QWidget> widget;
        QRect rect;  // empty: the font alone is kept in scale
        QFont font;
    };
    void Relayout();

    QWidget* stage_;
    std::vector<Item> items_;
    qreal scale_ = 1.0;
};

}  // namespace holdem
