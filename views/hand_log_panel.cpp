#include "views/hand_log_panel.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

#include "views/view_kit.h"

namespace holdem {

namespace {
constexpr int kPanelWidth = 330;
}

HandLogPanel::HandLogPanel(QWidget* parent) : QWidget(parent), view_(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("handLogPanel"));
    view_->setReadOnly(true);
    view_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    view_->setFont(kit::Sans(8.25));
    view_->setMinimumWidth(kPanelWidth);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(view_);
}

void HandLogPanel::Add(const LogLine& line) {
    if (line.kind == LogKind::GameStart) {
        lines_.clear();
        view_->clear();
    }
    QString text = kit::Q(FormatLogLine(line));
    // A blank line sets each hand apart.
    if (line.kind == LogKind::HandStart && !lines_.isEmpty()) {
        lines_ << QString();
        view_->appendPlainText(QString());
    }
    lines_ << text;
    view_->appendPlainText(text);
    view_->verticalScrollBar()->setValue(view_->verticalScrollBar()->maximum());
}

QString HandLogPanel::Text() const { return lines_.join(QChar('\n')) + QChar('\n'); }

}  // namespace holdem
