#include "views/frm_main.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <algorithm>

#include "views/follow_panels.h"
#include "views/qt_platform.h"
#include "views/table_scene.h"

namespace holdem {

using kit::Twips;

namespace {

// The layout, in twips of the client area (15 to a pixel).
constexpr QSize kClientSize = TableScene::kBaseSize;  // 755 x 508
constexpr QSize kTablePicture(757, 527);
constexpr QSize kWinnerPicture(758, 517);
constexpr QSize kWinnerPanel(755, 510);
const QColor kBehindTable(0, 64, 0);
const QColor kBetColour(192, 192, 0);
const QColor kUserNameColour(255, 255, 0);
QFont NameFont() { return kit::Sans(9.75, true); }
constexpr int kPauseMs = 1000;

struct SeatLayout {
    Twips name, dollarSign, bank, card1, card2, bet, arrow, button, paid;
    Qt::Alignment betAlign;
};

// Seat 1 bottom middle, then clockwise. The dealer disc stands beside the
// cards, clear of a long name, and "Paid" under the chips (over the name at
// the top seats), so that neither hides a card or another word.
const SeatLayout kSeatLayout[9] = {
    {},
    {{4920, 6960, 2175, 255},
     {5040, 7215, 1095, 255},
     {6120, 7215, 330, 195},
     {5280, 5520, 1065, 1440},
     {5520, 5520, 1065, 1440},
     {5580, 5280, 765, 240},
     {4680, 5640, 510, 240},
     {4680, 6000, 510, 510},
     {5715, 7425, 615, 195},
     Qt::AlignHCenter},
    {{1080, 6720, 2175, 255},
     {1320, 6990, 1095, 255},
     {2400, 6990, 330, 195},
     {1440, 5280, 1065, 1440},
     {1680, 5280, 1065, 1440},
     {1740, 5040, 765, 240},
     {2880, 5640, 510, 240},
     {840, 5400, 510, 510},
     {1875, 7200, 615, 195},
     Qt::AlignHCenter},
    {{-120, 4200, 2175, 255},
     {120, 4470, 1095, 255},
     {1200, 4470, 330, 195},
     {240, 2760, 1095, 1455},
     {480, 2760, 1095, 1455},
     {1680, 2880, 750, 240},
     {1680, 3600, 510, 240},
     {120, 4920, 510, 510},
     {675, 4680, 615, 195},
     Qt::AlignLeft},
    {{960, 360, 2175, 255},
     {1200, 630, 1095, 255},
     {2280, 630, 330, 195},
     {1440, 840, 1095, 1455},
     {1680, 840, 1095, 1455},
     {2400, 2340, 750, 240},
     {2880, 1560, 510, 240},
     {840, 900, 510, 510},
     {1875, 120, 615, 195},
     Qt::AlignLeft},
    {{5160, 360, 1455, 255},
     {5040, 630, 1095, 255},
     {6120, 630, 330, 195},
     {5160, 840, 1095, 1455},
     {5400, 840, 1095, 1455},
     {5475, 2340, 750, 240},
     {4560, 1560, 510, 240},
     {4560, 900, 510, 510},
     {5595, 120, 615, 195},
     Qt::AlignHCenter},
    {{8280, 360, 2175, 255},
     {8520, 630, 1095, 255},
     {9600, 630, 330, 195},
     {8760, 840, 1065, 1440},
     {9000, 840, 1065, 1440},
     {8655, 2340, 750, 240},
     {8160, 1440, 510, 240},
     {8160, 900, 510, 510},
     {9195, 120, 615, 195},
     Qt::AlignRight},
    {{9480, 4200, 1575, 255},
     {9240, 4470, 1095, 255},
     {10320, 4470, 330, 195},
     {9840, 2760, 1065, 1440},
     {10080, 2760, 1065, 1440},
     {9015, 2880, 750, 240},
     {9240, 3360, 510, 240},
     {10680, 2160, 510, 510},
     {10080, 4680, 615, 195},
     Qt::AlignRight},
    {{8520, 6720, 2175, 255},
     {8640, 6990, 1095, 255},
     {9720, 6990, 330, 195},
     {8880, 5280, 1065, 1440},
     {9120, 5280, 1065, 1440},
     {9240, 5040, 750, 240},
     {8280, 5760, 510, 240},
     {10320, 5700, 510, 510},
     {9315, 7200, 615, 195},
     Qt::AlignHCenter},
};

// Most name boxes are as wide as the name plates of the table picture; the
// narrower ones take that width too, and a box is trimmed evenly at both
// ends to stay inside the window, so its name stays centred where it was.
constexpr int kNamePlateTwips = 2175;
QRect NameBox(const Twips& place) {
    QRect box = kit::ToPixels(place);
    int centre2 = 2 * box.left() + box.width();  // twice the centre, in pixels
    int width = std::max(box.width(), kit::Px(kNamePlateTwips));
    width = std::min({width, centre2, 2 * kClientSize.width() - centre2});
    return QRect((centre2 - width) / 2, box.top(), width, box.height());
}

// Arrows of seats 2, 3 and 4 point left, towards their cards.
bool ArrowPointsLeft(int seat) { return seat >= 2 && seat <= 4; }

const Twips kBoard[5] = {{3000, 3120, 1065, 1440},
                         {4080, 3120, 1065, 1440},
                         {5160, 3120, 1065, 1440},
                         {6240, 3120, 1065, 1440},
                         {7320, 3120, 1065, 1440}};
const Twips kPotLabel{4680, 4710, 1095, 375};
// Starts where "Pot: $" ends rather than a pixel inside it: scaled up, the
// dollar sign would touch the amount.
const Twips kPot{5775, 4710, 450, 360};
const Twips kBlind{2880, 3840, 1995, 240};
const Twips kGoodLuck{2160, 3240, 3375, 495};
const Twips kYouWon{4485, 840, 2685, 555};

const Twips kPlayButtons[5] = {
    {}, {6600, 5520, 975, 375}, {6600, 5880, 975, 375}, {6600, 6240, 975, 375}, {6600, 6600, 975, 375}};
const Twips kDealButton{6600, 5520, 975, 375};
const Twips kStandingsButton{6600, 6240, 975, 375};
const Twips kFloorButton{6600, 6600, 975, 375};

void DrawLabel(QLabel* label, const Element& e) {
    QString text = kit::Q(e.text);
    if (label->text() != text) label->setText(text);
    label->setVisible(e.visible);
    label->setEnabled(e.enabled);
}

void DrawButton(QPushButton* button, const Element& e) {
    QString text = kit::Q(e.text);
    if (!text.isEmpty() && button->text() != text) button->setText(text);
    button->setVisible(e.visible);
    button->setEnabled(e.enabled);
}

void DrawAction(QAction* action, const Element& e) {
    action->setEnabled(e.enabled);
    if (action->isCheckable()) action->setChecked(e.checked);
}

QPixmap DrawnTable(const QSize& size) {
    QPixmap pixmap(size * 2);
    pixmap.fill(kBehindTable);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    QRectF rim(40, 70, pixmap.width() - 80, pixmap.height() - 150);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(92, 52, 24));
    p.drawRoundedRect(rim, rim.height() / 2, rim.height() / 2);
    QRectF felt = rim.adjusted(36, 36, -36, -36);
    p.setBrush(QColor(18, 110, 40));
    p.drawRoundedRect(felt, felt.height() / 2, felt.height() / 2);
    return pixmap;
}

QPixmap DrawnArrow(bool left) {
    QPixmap pixmap(68, 32);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    QPolygonF arrow({{4, 11}, {44, 11}, {44, 2}, {64, 16}, {44, 30}, {44, 21}, {4, 21}});
    if (left) arrow = QTransform(-1, 0, 0, 1, 68, 0).map(arrow);
    p.drawPolygon(arrow);
    return pixmap;
}

QPixmap DrawnDealer() {
    QPixmap pixmap(68, 68);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(60, 60, 60), 2));
    p.setBrush(Qt::white);
    p.drawEllipse(QRectF(2, 2, 64, 64));
    p.setPen(Qt::black);
    p.setFont(kit::Sans(7, true));
    p.drawText(QRect(0, 0, 68, 68), Qt::AlignCenter, QStringLiteral("DEALER"));
    return pixmap;
}

// Sets Game::UserDataFolder where the game has that field; until the files
// routines bring it, there is nothing to set.
template <typename G>
auto SetUserDataFolder(G& game, const std::string& folder, int)
    -> decltype(game.UserDataFolder = folder, void()) {
    game.UserDataFolder = folder;
}
template <typename G>
void SetUserDataFolder(G&, const std::string&, long) {}

QPixmap PictureOr(const std::string& appFolder, const QString& name, const QPixmap& fallback) {
    QPixmap pixmap = kit::LoadPicture(appFolder, name);
    return pixmap.isNull() ? fallback : pixmap;
}

}  // namespace

frmMain::frmMain(const std::string& appFolder, Platform* platform, QWidget* parent)
    : QMainWindow(parent),
      ownPlatform_(platform ? nullptr : std::make_unique<QtPlatform>(this)),
      game(platform ? *platform : *ownPlatform_) {
    // AppFolder ends in a separator so that file names can be appended.
    std::string folder = appFolder;
    std::string separator = QDir::separator() == QChar('/') ? "/" : "\\";
    if (folder.empty() || (folder.back() != '/' && folder.back() != '\\')) folder += separator;
    game.AppFolder = folder;
    onQuit = [] { QCoreApplication::quit(); };

    setWindowTitle(QStringLiteral("Texas Hold'em"));
    cards_ = std::make_unique<kit::CardPictures>(game.AppFolder);
    BuildTable();
    BuildMenus();
    BuildTimers();
    follow = new FollowPanels(*this);
    RedrawWidgets();
    resize(sizeHint());
}

frmMain::~frmMain() {
    for (QTimer* t : timers)
        if (t) t->stop();
}

// ---- Building ----------------------------------------------------------------

void frmMain::BuildTable() {
    scene_ = new TableScene(kBehindTable, this);
    setCentralWidget(scene_);
    QWidget* client = scene_->Stage();
    scene_->onRescaled = [this] {
        picTableMoney->setNaturalSize(scene_->Map(kWinnerPicture));
        RedrawWidgets();
    };

    // Larger than the client area: the stage clips it as the window did.
    table = new kit::PictureBox(client);
    scene_->Place(table, QRect(QPoint(0, 0), kTablePicture));
    table->setPicture(PictureOr(game.AppFolder, QStringLiteral("table.png"), DrawnTable(kTablePicture)));

    // Widgets made later lie on top: first cards, then second cards over them,
    // the board, markers, buttons, and the words over everything.
    for (int k = 1; k <= 21; ++k) {
        icard[k] = new kit::PictureBox(client);
        icard[k]->setObjectName(QStringLiteral("icard%1").arg(k));
        icard[k]->setPicture(cards_->Get(0));
    }
    for (int s = 1; s <= kSeats; ++s) {
        scene_->Place(icard[s], kSeatLayout[s].card1);
        scene_->Place(icard[s + 8], kSeatLayout[s].card2);
    }
    for (int k = 0; k < 5; ++k) scene_->Place(icard[17 + k], kBoard[k]);
    // The second card of each seat is raised over its first.
    for (int s = 1; s <= kSeats; ++s) icard[s + 8]->raise();
    for (int k = 17; k <= 21; ++k) icard[k]->raise();

    for (int s = 1; s <= kSeats; ++s) BuildSeat(s, client);
    BuildMiddle(client);
    BuildButtons(client);
    BuildWinnerPanel(client);
}

void frmMain::BuildSeat(int s, QWidget* client) {
    const SeatLayout& at = kSeatLayout[s];
    const QPixmap arrow =
        ArrowPointsLeft(s) ? PictureOr(game.AppFolder, QStringLiteral("arrow_left.png"), DrawnArrow(true))
                           : PictureOr(game.AppFolder, QStringLiteral("arrow_right.png"), DrawnArrow(false));
    const QPixmap dealer = PictureOr(game.AppFolder, QStringLiteral("dealer.png"), DrawnDealer());

    iArrow[s] = new kit::PictureBox(client);
    iArrow[s]->setPicture(arrow);
    scene_->Place(iArrow[s], at.arrow);
    iButton[s] = new kit::PictureBox(client);
    iButton[s]->setObjectName(QStringLiteral("iButton%1").arg(s));
    iButton[s]->setPicture(dealer);
    scene_->Place(iButton[s], at.button);

    lblName[s] = new QLabel(client);
    kit::StyleLabel(lblName[s], NameFont(), s == 1 ? kUserNameColour : QColor(Qt::white),
                    Qt::AlignHCenter | Qt::AlignTop);
    scene_->Place(lblName[s], NameBox(at.name));

    lblBankDollarSign[s] = new QLabel(client);
    kit::StyleLabel(lblBankDollarSign[s], kit::Sans(8.25, true), Qt::white, Qt::AlignRight | Qt::AlignTop);
    scene_->Place(lblBankDollarSign[s], at.dollarSign);

    lblBank[s] = new QLabel(client);
    kit::StyleLabel(lblBank[s], kit::Sans(8.25, true), Qt::white, Qt::AlignLeft | Qt::AlignTop);
    AutoSize(lblBank[s], kit::ToPixels(at.bank));

    lblBet[s] = new QLabel(client);
    kit::StyleLabel(lblBet[s], kit::Sans(9.75, true), kBetColour, at.betAlign | Qt::AlignTop);
    AutoSize(lblBet[s], kit::ToPixels(at.bet));

    lblPaid[s] = new QLabel(client);
    kit::StyleLabel(lblPaid[s], kit::Sans(8.25, true), Qt::white, Qt::AlignCenter);
    kit::SetBackground(lblPaid[s], Qt::black);
    AutoSize(lblPaid[s], kit::ToPixels(at.paid));
}

void frmMain::BuildMiddle(QWidget* client) {
    lblPotLabel = new kit::ClickLabel(client);
    kit::StyleLabel(lblPotLabel, kit::Sans(13.5), Qt::white, Qt::AlignRight | Qt::AlignTop);
    scene_->Place(lblPotLabel, kPotLabel);
    lblPot = new kit::ClickLabel(client);
    kit::StyleLabel(lblPot, kit::Sans(13.5), Qt::white, Qt::AlignLeft | Qt::AlignTop);
    AutoSize(lblPot, kit::ToPixels(kPot));
    connect(lblPot, &kit::ClickLabel::clicked, this, [this] { Call([this] { game.lblPot_Click(); }); });
    connect(lblPotLabel, &kit::ClickLabel::clicked, this,
            [this] { Call([this] { game.lblPotLabel_Click(); }); });

    lblBlind = new QLabel(client);
    kit::StyleLabel(lblBlind, kit::Sans(9.75, true), Qt::white, Qt::AlignLeft | Qt::AlignTop);
    // The large blinds of a long tournament run past the box.
    AutoSize(lblBlind, kit::ToPixels(kBlind));

    lblGoodLuck = new QLabel(client);
    kit::StyleLabel(lblGoodLuck, kit::Face(kit::kDisplayFace, 24), Qt::white, Qt::AlignCenter);
    // The display face is taller than its box: grow it about the box's middle.
    QRect box = kit::ToPixels(kGoodLuck);
    int height = std::max(box.height(), lblGoodLuck->fontMetrics().height() + 2);
    scene_->Place(lblGoodLuck, QRect(box.left(), box.center().y() - height / 2, box.width(), height));
}

void frmMain::BuildButtons(QWidget* client) {
    auto make = [&](const Twips& place, const std::function<void()>& routine) {
        auto* button = new QPushButton(client);
        button->setFont(kit::Sans(8.25));
        button->setAutoDefault(false);
        scene_->Place(button, place);
        connect(button, &QPushButton::clicked, this, [this, routine] {
            Call(routine);
            FocusTable();
        });
        return button;
    };
    for (int i = 1; i <= 4; ++i) cmdPlay[i] = make(kPlayButtons[i], [this, i] { game.cmdPlay_Click(i); });
    cmdDeal = make(kDealButton, [this] { game.cmdDeal_Click(); });
    cmdStandings = make(kStandingsButton, [this] { game.cmdStandings_Click(); });
    cmdFloor = make(kFloorButton, [this] { game.cmdFloor_Click(); });
}

void frmMain::BuildWinnerPanel(QWidget* client) {
    picTableMoney = new kit::PictureBox(client);
    scene_->Place(picTableMoney, QRect(QPoint(0, 0), kWinnerPanel));
    picTableMoney->setNaturalSize(kWinnerPicture);
    // Its picture is loaded when a game is first won.
    picTableMoney->setFallback(kBehindTable);
    lblYouWon = new QLabel(QStringLiteral("YOU WON!"), picTableMoney);
    kit::StyleLabel(lblYouWon, kit::Sans(24, true), Qt::white, Qt::AlignCenter);
    scene_->Place(lblYouWon, kYouWon);
    picTableMoney->raise();
    picTableMoney->hide();
}

void frmMain::BuildMenus() {
    QMenuBar* bar = menuBar();
    auto entry = [this](QMenu* menu, const char* caption, const std::function<void()>& routine,
                        bool checkable = false) {
        QAction* action = menu->addAction(QString::fromUtf8(caption));
        action->setCheckable(checkable);
        connect(action, &QAction::triggered, this, [this, routine] { Call(routine); });
        return action;
    };

    mnuFile = bar->addMenu(QStringLiteral("&File"));
    menuCaptions_.push_back({mnuFile, mnuFile->title()});
    mnuNew = entry(mnuFile, "&New...", [this] { game.mnuNew_Click(); });
    mnuNew->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    mnuOpen = entry(mnuFile, "&Open", [this] { game.mnuOpen_Click(); });
    mnuOpen->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    mnuFile->addSeparator();
    mnuSave = entry(mnuFile, "&Save", [this] { game.mnuSave_Click(); });
    mnuSave->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    mnuSaveAs = entry(mnuFile, "Save &As", [this] { game.mnuSaveAs_Click(); });
    mnuFile->addSeparator();
    mnuExit = mnuFile->addAction(QStringLiteral("E&xit"));
    connect(mnuExit, &QAction::triggered, this, [this] { mnuExit_Click(); });

    mnuTourney = bar->addMenu(QStringLiteral("&Tourney"));
    menuCaptions_.push_back({mnuTourney, mnuTourney->title()});
    mnuStandings = entry(mnuTourney, "&Standings", [this] { game.mnuStandings_Click(); });
    mnuFloor = entry(mnuTourney, "&View Floor", [this] { game.mnuFloor_Click(); });

    mnuSettings = bar->addMenu(QStringLiteral("&Settings"));
    menuCaptions_.push_back({mnuSettings, mnuSettings->title()});
    mnuSound = entry(
        mnuSettings, "&Sound", [this] { game.mnuSound_Click(); }, true);
    mnuSettings->addSeparator();
    mnuSpeed = mnuSettings->addMenu(QStringLiteral("&Speed..."));
    mnuFastSpeed = entry(
        mnuSpeed, "&Fast", [this] { game.mnuFastSpeed_Click(); }, true);
    mnuMediumSpeed = entry(
        mnuSpeed, "&Medium", [this] { game.mnuMediumSpeed_Click(); }, true);
    mnuSlowSpeed = entry(
        mnuSpeed, "&Slow", [this] { game.mnuSlowSpeed_Click(); }, true);
    mnuTips = entry(
        mnuSettings, "&Tip of the Day", [this] { game.mnuTips_Click(); }, true);

    mnuHelp = bar->addMenu(QStringLiteral("&Help"));
    menuCaptions_.push_back({mnuHelp, mnuHelp->title()});
    mnuHelpIndex = entry(mnuHelp, "Help", [this] { game.platform->ShowInfo(InfoForm::Help); });
    mnuHelpIndex->setShortcut(QKeySequence(Qt::Key_F1));
    mnuHelp->addSeparator();
    mnuRules = entry(mnuHelp, "Hold'em &Rules", [this] { game.platform->ShowInfo(InfoForm::Rules); });
    mnuHelp->addSeparator();
    mnuAbout = entry(mnuHelp, "A&bout", [this] { game.platform->ShowInfo(InfoForm::About); });
}

void frmMain::BuildTimers() {
    for (int id = 0; id < kTimerCount; ++id) {
        timers[id] = new QTimer(this);
        timers[id]->setTimerType(Qt::PreciseTimer);
        connect(timers[id], &QTimer::timeout, this, [this, id] { TimerTick(static_cast<TimerId>(id)); });
    }
}

// ---- Drawing -----------------------------------------------------------------

void frmMain::AutoSize(QLabel* label, const QRect& layoutBox) {
    scene_->ScaleFont(label);
    autoSized_.push_back({label, layoutBox});
}

void frmMain::SizeToText(const AutoSized& item) {
    QLabel* label = item.label;
    QRect box = scene_->Map(item.box);
    QFontMetrics metrics(label->font());
    bool boxed = label->autoFillBackground();
    int pad = boxed ? 6 : 2;
    int width = label->text().isEmpty() ? 0 : metrics.horizontalAdvance(label->text()) + pad;
    int height = std::max(box.height(), metrics.height());
    int left = box.left();
    // Grow about the anchor the alignment names, so no text is clipped.
    if (label->alignment() & Qt::AlignHCenter)
        left = box.center().x() + 1 - width / 2;
    else if (label->alignment() & Qt::AlignRight)
        left = box.right() + 1 - width;
    label->setGeometry(left, box.top(), width, height);
}

void frmMain::FocusTable() { scene_->setFocus(Qt::OtherFocusReason); }

// A menu gives up its access letter while a visible button of the table
// claims it, so that Alt+letter presses the button; F10 and a click still
// open the menu.
void frmMain::UpdateMenuKeys() {
    QString claimed;
    for (QPushButton* b : TableButtons())
        if (b->isVisibleTo(scene_)) claimed += AccessKey(b->text());
    for (auto [menu, caption] : menuCaptions_) {
        QString title = claimed.contains(AccessKey(caption)) ? QString(caption).remove(QChar('&')) : caption;
        if (menu->title() != title) menu->setTitle(title);
    }
}

std::vector<QPushButton*> frmMain::TableButtons() const {
    std::vector<QPushButton*> buttons{cmdPlay[1], cmdPlay[2],   cmdPlay[3], cmdPlay[4],
                                      cmdDeal,    cmdStandings, cmdFloor};
    if (follow) buttons.push_back(follow->cmdFinishHand);
    return buttons;
}

QChar frmMain::AccessKey(const QString& caption) {
    int at = caption.indexOf(QChar('&'));
    return at >= 0 && at + 1 < caption.size() ? caption[at + 1].toLower() : QChar();
}

void frmMain::RedrawWidgets() {
    const View& v = game.view;
    for (int s = 1; s <= kSeats; ++s) {
        DrawLabel(lblName[s], v.lblName[s]);
        kit::FitFontToWidth(lblName[s], scene_->Map(NameFont()));
        DrawLabel(lblBankDollarSign[s], v.lblBankDollarSign[s]);
        DrawLabel(lblBank[s], v.lblBank[s]);
        DrawLabel(lblBet[s], v.lblBet[s]);
        DrawLabel(lblPaid[s], v.lblPaid[s]);
        iArrow[s]->setVisible(v.iArrow[s].visible);
        iButton[s]->setVisible(v.iButton[s].visible);
    }
    for (int k = 1; k <= 21; ++k) {
        icard[k]->setPicture(cards_->Get(v.icard[k].picture));
        icard[k]->setVisible(v.icard[k].visible);
    }
    DrawLabel(lblPot, v.lblPot);
    DrawLabel(lblPotLabel, v.lblPotLabel);
    DrawLabel(lblBlind, v.lblBlind);
    DrawLabel(lblGoodLuck, v.lblGoodLuck);
    for (const AutoSized& item : autoSized_) SizeToText(item);
    for (int i = 1; i <= 4; ++i) DrawButton(cmdPlay[i], v.cmdPlay[i]);
    DrawButton(cmdDeal, v.cmdDeal);
    DrawButton(cmdStandings, v.cmdStandings);
    DrawButton(cmdFloor, v.cmdFloor);
    if (v.picTableMoney.visible && picTableMoney->picture().isNull())
        picTableMoney->setPicture(
            PictureOr(game.AppFolder, QStringLiteral("table_winner.png"), DrawnTable(kWinnerPicture)));
    picTableMoney->setVisible(v.picTableMoney.visible);
    if (follow) follow->ShowFinishHand();
    UpdateMenuKeys();
    // When the table's buttons change over, none of them keeps the keyboard
    // into the new moment: Space and Enter act only on a button the user
    // has moved to since.
    int shown = 0;
    for (QPushButton* b : TableButtons()) shown = shown * 2 + (b->isVisibleTo(scene_) ? 1 : 0);
    if (shown != buttonsShown_) {
        buttonsShown_ = shown;
        FocusTable();
    }

    DrawAction(mnuNew, v.mnuNew);
    DrawAction(mnuOpen, v.mnuOpen);
    DrawAction(mnuSave, v.mnuSave);
    DrawAction(mnuSaveAs, v.mnuSaveAs);
    DrawAction(mnuExit, v.mnuExit);
    DrawAction(mnuStandings, v.mnuStandings);
    DrawAction(mnuFloor, v.mnuFloor);
    DrawAction(mnuSound, v.mnuSound);
    DrawAction(mnuFastSpeed, v.mnuFastSpeed);
    DrawAction(mnuMediumSpeed, v.mnuMediumSpeed);
    DrawAction(mnuSlowSpeed, v.mnuSlowSpeed);
    DrawAction(mnuTips, v.mnuTips);
    DrawAction(mnuHelpIndex, v.mnuHelpIndex);
    DrawAction(mnuRules, v.mnuRules);
    DrawAction(mnuAbout, v.mnuAbout);
}

void frmMain::SyncTimers() {
    for (int id = 0; id < kTimerCount; ++id) {
        const TimerState& state = game.view.timer[id];
        QTimer* t = timers[id];
        if (!state.enabled) {
            t->stop();
            continue;
        }
        int interval = std::max<int32_t>(1, state.interval);
        // A timer newly switched on starts a full interval; a running one
        // keeps its rhythm unless its interval changed.
        if (!t->isActive())
            t->start(interval);
        else if (t->interval() != interval)
            t->start(interval);
    }
}

void frmMain::Redraw() {
    RedrawWidgets();
    SyncTimers();
    follow->AfterRedraw();
}

// ---- Calls into the game -------------------------------------------------------

void frmMain::Call(const std::function<void()>& routine) {
    if (busy_ || quitting_) return;
    busy_ = true;
    routine();
    busy_ = false;
    Redraw();
}

void frmMain::TimerTick(TimerId id) {
    if (busy_ || quitting_) return;
    if (!game.view.timer[id].enabled) {
        timers[id]->stop();
        return;
    }
    Call([this, id] { game.FireTimer(id); });
}

void frmMain::PauseTable() {
    if (skipPause) return;
    repaint();
    QElapsedTimer clock;
    clock.start();
    // Paint and expose events still run; input waits, and ticks find the
    // window busy.
    bool wasBusy = busy_;
    busy_ = true;
    QEventLoop loop;
    QTimer::singleShot(kPauseMs + 1, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    while (clock.elapsed() <= kPauseMs) QThread::msleep(1);
    busy_ = wasBusy;
}

void frmMain::ShowInfo(InfoForm form) {
    Call([this, form] { game.platform->ShowInfo(form); });
}

// ---- Start and exit ------------------------------------------------------------

void frmMain::Start() {
    // The per-user folder takes what cannot be written beside the program.
    std::string userData = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
    if (!userData.empty() && userData.back() != '/') userData += '/';
    SetUserDataFolder(game, userData, 0);
    follow->Load(userData);
    Call([this] {
        game.ReadSettings();
        game.SetGameSpeed();
        game.view.mnuSound.checked = game.SoundOn;
    });
    game.StandingsPath = game.AppFolder + "stnd.dat";
    // In the middle of the screen, so that the splash and the forms that
    // centre on the window come up where it is.
    if (QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    show();
    game.view.mnuTips.checked = game.TipsAtStartup;
    Redraw();
    ShowInfo(InfoForm::Splash);
    if (game.TipsAtStartup) ShowInfo(InfoForm::Tip);
}

bool frmMain::ExitQuestionNeeded(bool closeBox) const {
    if (game.RosterBank[1] < 1 || game.HandsPlayed < 2 || !game.GameUnsaved) return false;
    return closeBox ? game.PlayersLeft >= 2 : !game.GameEnded;
}

bool frmMain::Exit(bool closeBox) {
    if (busy_ || quitting_) return quitting_;
    if (ExitQuestionNeeded(closeBox)) {
        MsgAnswer answer = MsgAnswer::No;
        Call([&] {
            answer = game.platform->MessageBox("Do you want to save the current game?", "Exit",
                                               MsgIcon::Information, MsgButtons::YesNoCancel);
        });
        if (answer == MsgAnswer::Cancel) return false;
        if (answer == MsgAnswer::Yes) Call([this] { game.SaveGame(); });
    }
    Call([this] { game.WriteSettings(); });
    quitting_ = true;
    game.StopHandTimers();
    for (QTimer* t : timers) t->stop();
    onQuit();
    return true;
}

bool frmMain::mnuExit_Click() {
    if (!Exit(false)) return false;
    close();
    return true;
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (quitting_ || Exit(true))
        event->accept();
    else
        event->ignore();
}

}  // namespace holdem
