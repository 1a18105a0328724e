// The about box.
#pragma once

#include <QDialog>
#include <string>

#include "views/view_kit.h"

class QLabel;

namespace holdem {

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(const std::string& appFolder, QWidget* parent = nullptr);

    QLabel* Picture1 = nullptr;
    QLabel* lblTitle = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblDisclaimer = nullptr;
    kit::ClickLabel* lblOK = nullptr;
};

}  // namespace holdem
