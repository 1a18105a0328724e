// The splash at start: closes at the second tick of its timer, or at a key
// or a click, whichever comes first.
#pragma once

#include <QDialog>
#include <string>

#include "views/view_kit.h"

class QTimer;

namespace holdem {

class frmSplash : public QDialog {
    Q_OBJECT
public:
    frmSplash(const std::string& appFolder, QWidget* parent = nullptr);

    QLabel *lblCompanyProduct, *lblProductName, *lblPlatform, *lblVersion;
    kit::PictureBox* Picture1;
    kit::PictureBox *Image1, *Image2, *Image3, *Image4;
    QTimer* timerSplash;
    int ticks = 0;
    void timerSplash_Timer();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void CloseSplash();
    bool closed_ = false;
};

}  // namespace holdem
