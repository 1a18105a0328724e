// The user's statistics across games, with a reset.
#pragma once

#include <QDialog>

#include "files/statistics.h"

class QLabel;

namespace holdem {

class frmStatistics : public QDialog {
    Q_OBJECT
public:
    explicit frmStatistics(const Statistics& stats, QWidget* parent = nullptr);
    // True when the user reset the record; `stats` then holds it reset.
    bool resetDone() const { return reset_; }
    const Statistics& stats() const { return stats_; }

private:
    void Fill();
    void cmdReset_Click();

    Statistics stats_;
    bool reset_ = false;
    QLabel* lblFigures = nullptr;
};

// "41 (13.2%)": a count and its share of a whole, for the window.
QString CountAndShare(int32_t count, int32_t whole);

}  // namespace holdem
