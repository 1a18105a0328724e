// The hand log beside the table: the game's own events in plain words, hand
// by hand, kept for the whole game so that it can be saved as a text file.
#pragma once

#include <QStringList>
#include <QWidget>

#include "engine/hand_log.h"

class QPlainTextEdit;

namespace holdem {

class HandLogPanel : public QWidget {
    Q_OBJECT
public:
    explicit HandLogPanel(QWidget* parent = nullptr);

    // A new game starts the log afresh.
    void Add(const LogLine& line);
    // The whole log of the current game, one line each, as saved.
    QString Text() const;
    bool Empty() const { return lines_.isEmpty(); }

private:
    QPlainTextEdit* view_;
    QStringList lines_;
};

}  // namespace holdem
