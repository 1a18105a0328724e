// The tournament at a glance: players and tables left, the blinds now and
// when they next rise, the user's place by chips, the average stack, and the
// players who have just joined the user's table.
#pragma once

#include <QStringList>
#include <QWidget>

#include "engine/play_out.h"

class QLabel;

namespace holdem {

class TourneyPanel : public QWidget {
    Q_OBJECT
public:
    explicit TourneyPanel(QWidget* parent = nullptr);
    void Show(const TourneyFigures& figures, const QStringList& joined);
    QString Text() const;

private:
    QLabel* label_;
};

}  // namespace holdem
