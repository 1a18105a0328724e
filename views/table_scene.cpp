#include "views/table_scene.h"

#include <QResizeEvent>
#include <algorithm>
#include <cmath>

namespace holdem {

TableScene::TableScene(const QColor& ground, QWidget* parent) : QWidget(parent), stage_(new QWidget(this)) {
    kit::SetBackground(this, ground);
    setMinimumSize(kBaseSize);
    stage_->setGeometry(QRect(QPoint(0, 0), kBaseSize));
    // Clicking the felt takes the keyboard off the buttons.
    setFocusPolicy(Qt::ClickFocus);
}

void TableScene::Place(QWidget* w, const QRect& layoutPixels) {
    items_.push_back({w, layoutPixels, w->font()});
    w->setGeometry(Map(layoutPixels));
    w->setFont(Map(w->font()));
}

void TableScene::ScaleFont(QWidget* w) {
    items_.push_back({w, QRect(), w->font()});
    w->setFont(Map(w->font()));
}

// Edges are rounded, not sizes, so that neighbours that touch still touch.
QRect TableScene::Map(const QRect& r) const {
    auto at = [this](int v) { return static_cast<int>(std::lround(v * scale_)); };
    return QRect(QPoint(at(r.left()), at(r.top())),
                 QPoint(at(r.left() + r.width()) - 1, at(r.top() + r.height()) - 1));
}

QSize TableScene::Map(const QSize& s) const { return Map(QRect(QPoint(0, 0), s)).size(); }

QFont TableScene::Map(const QFont& f) const {
    QFont scaled = f;
    if (f.pixelSize() > 0)
        scaled.setPixelSize(std::max(1, static_cast<int>(std::lround(f.pixelSize() * scale_))));
    return scaled;
}

void TableScene::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    qreal scale =
        std::max(1.0, std::min(qreal(width()) / kBaseSize.width(), qreal(height()) / kBaseSize.height()));
    QSize stage = QSize(std::lround(kBaseSize.width() * scale), std::lround(kBaseSize.height() * scale));
    stage_->setGeometry(QRect(QPoint((width() - stage.width()) / 2, (height() - stage.height()) / 2), stage));
    if (scale == scale_) return;
    scale_ = scale;
    Relayout();
}

void TableScene::Relayout() {
    std::erase_if(items_, [](const Item& item) { return item.widget.isNull(); });
    for (const Item& item : items_) {
        item.widget->setFont(Map(item.font));
        if (!item.rect.isNull()) item.widget->setGeometry(Map(item.rect));
    }
    if (onRescaled) onRescaled();
}

}  // namespace holdem
