// Draws every picture of the game into assets/pictures/. Each picture is drawn at
// twice the size the window shows it, so that it stays sharp when Qt scales it.
// The output is deterministic: no clock, no unseeded randomness, fixed fonts.
//
//   gen_pictures [output folder] [--preview FILE] [--icons FOLDER]
//
// --icons names where the desktop icons go: holdem.svg and holdem_<size>.png.
// --preview also writes a composed table with cards, buttons and arrows placed
// where the window puts them, to check that the seats fit the table.

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTextDocument>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

#include "gen_pictures_pages.h"

namespace {

constexpr int kScale = 2;
// Every canvas is told it has 96 dots per inch, so that a font's point size turns
// into the same pixels whatever screen the offscreen platform pretends to have.
constexpr double kDpi = 96.0;

// ---- Shared helpers -----------------------------------------------------------

// Window positions are given in twips, 15 to a pixel.
QRectF twips(double left, double top, double width, double height) {
    return QRectF(left / 15.0, top / 15.0, width / 15.0, height / 15.0);
}

QColor mix(const QColor& a, const QColor& b, double t) {
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * t, a.greenF() + (b.greenF() - a.greenF()) * t,
                            a.blueF() + (b.blueF() - a.blueF()) * t,
                            a.alphaF() + (b.alphaF() - a.alphaF()) * t);
}

// A fixed-seed source for scattered details; mt19937's output is the same everywhere.
class Scatter {
public:
    explicit Scatter(uint32_t seed) : gen_(seed) {}
    double next() { return (gen_() >> 8) * (1.0 / 16777216.0); }
    double between(double lo, double hi) { return lo + (hi - lo) * next(); }

private:
    std::mt19937 gen_;
};

// A picture of the listed size in pixels, painted in listed units at twice the resolution.
class Canvas {
public:
    Canvas(int width, int height)
        : image_(width * kScale, height * kScale, QImage::Format_ARGB32_Premultiplied) {
        image_.fill(Qt::transparent);
        image_.setDotsPerMeterX(int(std::lround(kDpi / 0.0254)));
        image_.setDotsPerMeterY(int(std::lround(kDpi / 0.0254)));
        painter_.begin(&image_);
        painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                                QPainter::SmoothPixmapTransform);
        painter_.scale(kScale, kScale);
    }
    QPainter& p() { return painter_; }
    QImage finish() {
        painter_.end();
        return image_;
    }

private:
    QImage image_;
    QPainter painter_;
};

QFont pixelFont(const QString& family, double pixels, bool bold = false) {
    QFont font(family);
    font.setPointSizeF(pixels * 72.0 / kDpi);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void drawText(QPainter& p, const QRectF& box, int flags, const QString& text, const QFont& font,
              const QColor& colour) {
    p.save();
    p.setFont(font);
    p.setPen(colour);
    p.drawText(box, flags, text);
    p.restore();
}

// ---- Suits --------------------------------------------------------------------

enum Suit { kHearts, kSpades, kDiamonds, kClubs };

bool isRed(Suit suit) { return suit == kHearts || suit == kDiamonds; }

QColor suitColour(Suit suit) { return isRed(suit) ? QColor(196, 18, 32) : QColor(22, 22, 26); }

// The shape of a suit in a unit box (0..1 both ways); several parts for the club.
std::vector<QPainterPath> suitShape(Suit suit) {
    std::vector<QPainterPath> parts;
    QPainterPath path;
    switch (suit) {
        case kHearts:
            path.moveTo(0.5, 0.97);
            path.cubicTo(0.44, 0.86, 0.0, 0.62, 0.0, 0.31);
            path.cubicTo(0.0, 0.11, 0.14, 0.02, 0.27, 0.02);
            path.cubicTo(0.39, 0.02, 0.47, 0.10, 0.5, 0.21);
            path.cubicTo(0.53, 0.10, 0.61, 0.02, 0.73, 0.02);
            path.cubicTo(0.86, 0.02, 1.0, 0.11, 1.0, 0.31);
            path.cubicTo(1.0, 0.62, 0.56, 0.86, 0.5, 0.97);
            parts.push_back(path);
            break;
        case kDiamonds:
            path.moveTo(0.5, 0.0);
            path.quadTo(0.63, 0.30, 0.88, 0.5);
            path.quadTo(0.63, 0.70, 0.5, 1.0);
            path.quadTo(0.37, 0.70, 0.12, 0.5);
            path.quadTo(0.37, 0.30, 0.5, 0.0);
            parts.push_back(path);
            break;
        case kSpades:
            path.moveTo(0.5, 0.0);
            path.cubicTo(0.56, 0.15, 1.0, 0.36, 1.0, 0.60);
            path.cubicTo(1.0, 0.78, 0.87, 0.85, 0.75, 0.85);
            path.cubicTo(0.65, 0.85, 0.57, 0.80, 0.53, 0.72);
            path.cubicTo(0.55, 0.86, 0.61, 0.95, 0.70, 1.0);
            path.lineTo(0.30, 1.0);
            path.cubicTo(0.39, 0.95, 0.45, 0.86, 0.47, 0.72);
            path.cubicTo(0.43, 0.80, 0.35, 0.85, 0.25, 0.85);
            path.cubicTo(0.13, 0.85, 0.0, 0.78, 0.0, 0.60);
            path.cubicTo(0.0, 0.36, 0.44, 0.15, 0.5, 0.0);
            parts.push_back(path);
            break;
        case kClubs: {
            const double r = 0.225;
            for (const QPointF c : {QPointF(0.5, 0.25), QPointF(0.255, 0.58), QPointF(0.745, 0.58)}) {
                QPainterPath leaf;
                leaf.addEllipse(c, r, r);
                parts.push_back(leaf);
            }
            QPainterPath middle;
            middle.addEllipse(QPointF(0.5, 0.52), 0.14, 0.14);
            parts.push_back(middle);
            path.moveTo(0.5, 0.5);
            path.cubicTo(0.52, 0.80, 0.60, 0.94, 0.70, 1.0);
            path.lineTo(0.30, 1.0);
            path.cubicTo(0.40, 0.94, 0.48, 0.80, 0.5, 0.5);
            parts.push_back(path);
            break;
        }
    }
    return parts;
}

// A pip of the given height centred on a point; upside down for the lower half of a card.
void drawSuit(QPainter& p, Suit suit, QPointF centre, double size, bool upsideDown = false,
              const QColor& colour = QColor()) {
    p.save();
    p.translate(centre);
    if (upsideDown) p.rotate(180);
    p.scale(size, size);
    p.translate(-0.5, -0.5);
    p.setPen(Qt::NoPen);
    p.setBrush(colour.isValid() ? colour : suitColour(suit));
    for (const QPainterPath& part : suitShape(suit)) p.drawPath(part);
    p.restore();
}

// ---- Card faces ---------------------------------------------------------------

constexpr double kCardW = 69, kCardH = 94;
const std::array<QString, 13> kRankText = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K", "A"};

void drawCardBlank(QPainter& p, double width, double height) {
    QRectF body(0.5, 0.5, width - 1, height - 1);
    QLinearGradient paper(0, 0, 0, height);
    paper.setColorAt(0, QColor(255, 255, 255));
    paper.setColorAt(1, QColor(244, 244, 240));
    p.setPen(QPen(QColor(150, 150, 150), 0.8));
    p.setBrush(paper);
    p.drawRoundedRect(body, 5, 5);
}

// Rank and suit in the top-left corner; the caller turns the card to draw the other.
void drawCornerIndex(QPainter& p, Suit suit, int rank) {
    const QString text = kRankText[rank];
    p.save();
    if (text.size() == 2) {
        // "10" is squeezed so that it stays as tall as the other ranks.
        p.translate(8.5, 0);
        p.scale(0.72, 1.0);
        p.translate(-8.5, 0);
    }
    drawText(p, QRectF(0, 1.5, 17, 15), Qt::AlignCenter, text, pixelFont("Liberation Sans", 14.5, true),
             suitColour(suit));
    p.restore();
    drawSuit(p, suit, QPointF(8.5, 22.5), 10);
}

// Pip places of the number cards: column 0..2, row 0..4 from the top.
std::vector<QPointF> pipLayout(int count) {
    const double third = 4.0 / 3.0;
    switch (count) {
        case 2:
            return {{1, 0}, {1, 4}};
        case 3:
            return {{1, 0}, {1, 2}, {1, 4}};
        case 4:
            return {{0, 0}, {2, 0}, {0, 4}, {2, 4}};
        case 5:
            return {{0, 0}, {2, 0}, {1, 2}, {0, 4}, {2, 4}};
        case 6:
            return {{0, 0}, {2, 0}, {0, 2}, {2, 2}, {0, 4}, {2, 4}};
        case 7:
            return {{0, 0}, {2, 0}, {1, 1}, {0, 2}, {2, 2}, {0, 4}, {2, 4}};
        case 8:
            return {{0, 0}, {2, 0}, {1, 1}, {0, 2}, {2, 2}, {1, 3}, {0, 4}, {2, 4}};
        case 9:
            return {{0, 0},         {2, 0},         {0, third}, {2, third}, {1, 2},
                    {0, 2 * third}, {2, 2 * third}, {0, 4},     {2, 4}};
        default:
            return {{0, 0},         {2, 0},         {1, third / 2},     {0, third}, {2, third},
                    {0, 2 * third}, {2, 2 * third}, {1, 4 - third / 2}, {0, 4},     {2, 4}};
    }
}

void drawNumberPips(QPainter& p, Suit suit, int count) {
    const double left = 23.5, columnStep = 11, top = 17.5, rowStep = 14.75;
    const double size = count >= 9 ? 12 : 13;
    for (const QPointF& place : pipLayout(count)) {
        const QPointF centre(left + place.x() * columnStep, top + place.y() * rowStep);
        drawSuit(p, suit, centre, size, place.y() > 2.01);
    }
}

// Jack, Queen and King: a framed panel with the letter and the suit, mirrored like a real court card.
void drawCourt(QPainter& p, Suit suit, int rank) {
    const QRectF panel(16, 12.5, 37, 69);
    const QColor ink = suitColour(suit);
    QLinearGradient fill(panel.topLeft(), panel.bottomRight());
    fill.setColorAt(0, QColor(255, 248, 222));
    fill.setColorAt(0.5, QColor(250, 232, 178));
    fill.setColorAt(1, QColor(255, 248, 222));
    p.setPen(QPen(ink, 1.1));
    p.setBrush(fill);
    p.drawRect(panel);
    p.setPen(QPen(mix(ink, Qt::white, 0.35), 0.5));
    p.setBrush(Qt::NoBrush);
    p.drawRect(panel.adjusted(2, 2, -2, -2));
    p.drawLine(QPointF(panel.left() + 2, panel.center().y()), QPointF(panel.right() - 2, panel.center().y()));
    const QPointF middle = panel.center();
    for (int half = 0; half < 2; ++half) {
        p.save();
        p.translate(middle);
        p.rotate(half * 180.0);
        p.translate(-middle);
        drawText(p, QRectF(panel.left(), panel.top() + 1.5, panel.width(), 22), Qt::AlignCenter,
                 kRankText[rank], pixelFont("Liberation Serif", 23, true), ink);
        drawSuit(p, suit, QPointF(middle.x(), panel.top() + 28.5), 8);
        drawSuit(p, suit, QPointF(panel.left() + 6.5, panel.top() + 7), 5);
        drawSuit(p, suit, QPointF(panel.right() - 6.5, panel.top() + 7), 5);
        p.restore();
    }
}

QImage drawCardFace(Suit suit, int rank) {
    Canvas canvas(kCardW, kCardH);
    QPainter& p = canvas.p();
    drawCardBlank(p, kCardW, kCardH);
    const QPointF centre(kCardW / 2, kCardH / 2);
    for (int corner = 0; corner < 2; ++corner) {
        p.save();
        p.translate(centre);
        p.rotate(corner * 180.0);
        p.translate(-centre);
        drawCornerIndex(p, suit, rank);
        p.restore();
    }
    if (rank <= 8) {
        drawNumberPips(p, suit, rank + 2);
    } else if (rank <= 11) {
        drawCourt(p, suit, rank);
    } else {
        drawSuit(p, suit, centre, suit == kSpades ? 40 : 34);
    }
    return canvas.finish();
}

// ---- Card back ----------------------------------------------------------------

QImage drawCardBack() {
    const double w = 73, h = 97;
    Canvas canvas(w, h);
    QPainter& p = canvas.p();
    drawCardBlank(p, w, h);
    const QRectF field(4.5, 4.5, w - 9, h - 9);
    QPainterPath fieldPath;
    fieldPath.addRoundedRect(field, 3, 3);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(22, 52, 138));
    p.drawPath(fieldPath);
    p.save();
    p.setClipPath(fieldPath);
    p.setPen(QPen(QColor(96, 136, 222), 0.7));
    const double step = 5.5;
    for (double d = -h; d < w + h; d += step) {
        p.drawLine(QPointF(d, 0), QPointF(d + h, h));
        p.drawLine(QPointF(d, h), QPointF(d + h, 0));
    }
    // Small diamonds where the lattice crosses.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(170, 196, 250));
    for (double y = 0; y <= h; y += step / 2) {
        for (double x = 0; x <= w; x += step) {
            const double shift = std::fmod(std::round(y / (step / 2)), 2.0) * step / 2;
            const QPointF c(x + shift + std::fmod(h, step) / 2, y);
            p.drawEllipse(c, 0.55, 0.55);
        }
    }
    p.restore();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(240, 244, 255), 1.0));
    p.drawRoundedRect(field.adjusted(2.5, 2.5, -2.5, -2.5), 2, 2);
    // A medallion in the middle.
    const QPointF centre(w / 2, h / 2);
    p.setPen(QPen(QColor(240, 244, 255), 1.0));
    p.setBrush(QColor(22, 52, 138));
    p.drawEllipse(centre, 13, 17);
    p.setPen(QPen(QColor(170, 196, 250), 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(centre, 10.5, 14.5);
    drawSuit(p, kSpades, centre, 15, false, QColor(240, 244, 255));
    return canvas.finish();
}

// ---- The table ----------------------------------------------------------------

const QColor kGround(0, 64, 0);
const QRectF kRailOuter(4, 20, 749, 484);
constexpr double kRailRadius = 130, kRailWidth = 38;
const QColor kFeltLight(24, 138, 64), kFeltMid(10, 112, 48), kFeltEdge(0, 80, 32);
// The bet line on the felt: round the board and the pot, clear of every seat's labels.
const QRectF kBetLine(150, 186, 460, 160);

QPainterPath roundedRect(const QRectF& rect, double radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QPainterPath railPath() { return roundedRect(kRailOuter, kRailRadius); }

QPainterPath feltPath() {
    return roundedRect(kRailOuter.adjusted(kRailWidth, kRailWidth, -kRailWidth, -kRailWidth),
                       kRailRadius - kRailWidth);
}

// A soft shadow under the table, faked by widening transparent outlines.
void drawTableShadow(QPainter& p) {
    p.save();
    p.setBrush(Qt::NoBrush);
    for (int i = 8; i >= 1; --i) {
        p.setPen(QPen(QColor(0, 0, 0, 18), i * 2.0));
        p.drawPath(railPath().translated(0, 3));
    }
    p.restore();
}

void drawFelt(QPainter& p, const QPointF& lightCentre) {
    QRadialGradient light(lightCentre, 420);
    light.setColorAt(0, kFeltLight);
    light.setColorAt(0.55, kFeltMid);
    light.setColorAt(1, kFeltEdge);
    QBrush brush(light);
    // Stretch the light to the oval of the table.
    brush.setTransform(QTransform()
                           .translate(lightCentre.x(), lightCentre.y())
                           .scale(1.0, 0.62)
                           .translate(-lightCentre.x(), -lightCentre.y()));
    p.setPen(Qt::NoPen);
    p.setBrush(brush);
    p.drawPath(feltPath());
    // Shade along the rail, as if the rail stood above the felt.
    p.save();
    p.setClipPath(feltPath());
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < 10; ++i) {
        p.setPen(QPen(QColor(0, 0, 0, 16), 2.0 + i * 3.0));
        p.drawPath(feltPath());
    }
    p.restore();
}

void drawBetLine(QPainter& p) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(226, 196, 110, 70), 1.4));
    p.drawRoundedRect(kBetLine, kBetLine.height() / 2, kBetLine.height() / 2);
}

// The padded leather rail: bands from dark at the edges to light along the middle.
void drawRail(QPainter& p) {
    const QPainterPath rail = railPath().subtracted(feltPath());
    p.save();
    p.setClipPath(rail);
    const double half = kRailWidth / 2;
    const QRectF middle = kRailOuter.adjusted(half, half, -half, -half);
    const QColor dark(34, 18, 10), light(122, 70, 38);
    const int bands = 24;
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < bands; ++i) {
        const double t = double(i) / (bands - 1);
        p.setPen(QPen(mix(dark, light, std::pow(t, 0.7)), kRailWidth * (1.0 - t) + 1.0));
        p.drawRoundedRect(middle, kRailRadius - half, kRailRadius - half);
    }
    // Light from above: the top of the rail catches it, the bottom falls into shade.
    QLinearGradient sheen(0, kRailOuter.top(), 0, kRailOuter.bottom());
    sheen.setColorAt(0, QColor(255, 230, 200, 46));
    sheen.setColorAt(0.5, QColor(255, 255, 255, 0));
    sheen.setColorAt(1, QColor(0, 0, 0, 50));
    p.fillRect(kRailOuter, sheen);
    // Stitching along both edges of the padding.
    QPen stitch(QColor(214, 170, 116, 120), 0.7, Qt::DashLine);
    stitch.setDashPattern({3.0, 3.0});
    p.setPen(stitch);
    const double seam = 5;
    p.drawRoundedRect(kRailOuter.adjusted(seam, seam, -seam, -seam), kRailRadius - seam, kRailRadius - seam);
    const double inner = kRailWidth - seam - 2;
    p.drawRoundedRect(kRailOuter.adjusted(inner, inner, -inner, -inner), kRailRadius - inner,
                      kRailRadius - inner);
    p.restore();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(20, 10, 4), 1.2));
    p.drawPath(railPath());
}

// A thin wooden trim between the rail and the felt.
void drawTrim(QPainter& p) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(70, 40, 16), 7));
    p.drawPath(feltPath());
    p.setPen(QPen(QColor(168, 112, 58), 4.5));
    p.drawPath(feltPath());
    p.setPen(QPen(QColor(214, 160, 96, 150), 1.2));
    p.drawPath(feltPath().translated(0, -1.2));
}

// Where each seat's name and chips stand: the union of lblName, lblBankDollarSign
// and lblBank, the last widened for a long amount.
struct SeatLabels {
    QRectF name, dollar, bank;
};
const std::array<SeatLabels, 8> kSeatLabels = {{
    {twips(4920, 6960, 2175, 255), twips(5040, 7215, 1095, 255), twips(6120, 7215, 330, 195)},
    {twips(1080, 6720, 2175, 255), twips(1320, 6990, 1095, 255), twips(2400, 6990, 330, 195)},
    {twips(-120, 4200, 2175, 255), twips(120, 4470, 1095, 255), twips(1200, 4470, 330, 195)},
    {twips(960, 360, 2175, 255), twips(1200, 630, 1095, 255), twips(2280, 630, 330, 195)},
    {twips(5160, 360, 1455, 255), twips(5040, 630, 1095, 255), twips(6120, 630, 330, 195)},
    {twips(8280, 360, 2175, 255), twips(8520, 630, 1095, 255), twips(9600, 630, 330, 195)},
    {twips(9480, 4200, 1575, 255), twips(9240, 4470, 1095, 255), twips(10320, 4470, 330, 195)},
    {twips(8520, 6720, 2175, 255), twips(8640, 6990, 1095, 255), twips(9720, 6990, 330, 195)},
}};

QRectF namePlate(int seat) {
    const SeatLabels& l = kSeatLabels[seat - 1];
    QRectF bank = l.bank;
    bank.setWidth(60);
    QRectF plate = l.name.united(l.dollar).united(bank).adjusted(-3, -1, 3, 1);
    plate.setLeft(std::max(plate.left(), 7.0));
    plate.setRight(std::min(plate.right(), 748.0));
    return plate;
}

// Dark plates under each seat's name and chips keep the labels readable on rail and felt.
void drawNamePlates(QPainter& p) {
    for (int seat = 1; seat <= 8; ++seat) {
        const QRectF plate = namePlate(seat);
        QLinearGradient fill(plate.topLeft(), plate.bottomLeft());
        fill.setColorAt(0, QColor(0, 0, 0, 150));
        fill.setColorAt(1, QColor(0, 0, 0, 110));
        p.setBrush(fill);
        p.setPen(
            QPen(seat == 1 ? QColor(236, 200, 96, 220) : QColor(206, 170, 92, 150), seat == 1 ? 1.2 : 0.9));
        p.drawRoundedRect(plate, 6, 6);
    }
}

void drawTableBase(QPainter& p, double width, double height, const QPointF& lightCentre) {
    p.fillRect(QRectF(0, 0, width, height), kGround);
    drawTableShadow(p);
    drawFelt(p, lightCentre);
    drawRail(p);
    drawTrim(p);
}

QImage drawTable() {
    Canvas canvas(757, 527);
    QPainter& p = canvas.p();
    drawTableBase(p, 757, 527, QPointF(378, 262));
    drawBetLine(p);
    drawNamePlates(p);
    return canvas.finish();
}

// ---- The winner's table -------------------------------------------------------

const std::array<QColor, 5> kChipColours = {QColor(200, 30, 36), QColor(24, 70, 180), QColor(30, 30, 34),
                                            QColor(20, 130, 60), QColor(236, 236, 228)};

// One chip seen from above at a slant: a squashed disc with its edge stripes.
void drawChip(QPainter& p, QPointF centre, double radius, const QColor& colour, double squash = 0.5) {
    const double ry = radius * squash, thickness = radius * 0.28;
    const QColor edge = colour.lightness() > 200 ? QColor(120, 30, 30) : QColor(240, 240, 236);
    p.setPen(QPen(colour.darker(170), 0.5));
    p.setBrush(colour.darker(135));
    p.drawRoundedRect(QRectF(centre.x() - radius, centre.y() - ry, radius * 2, ry * 2 + thickness), radius,
                      ry);
    p.setBrush(colour);
    p.drawEllipse(centre, radius, ry);
    p.setPen(QPen(edge, radius * 0.22, Qt::SolidLine, Qt::FlatCap));
    p.setBrush(Qt::NoBrush);
    const QRectF ring(centre.x() - radius * 0.86, centre.y() - ry * 0.86, radius * 1.72, ry * 1.72);
    for (int k = 0; k < 6; ++k) p.drawArc(ring, k * 960 + 160, 320);
    p.setPen(QPen(edge, 0.6));
    p.drawEllipse(centre, radius * 0.56, ry * 0.56);
}

void drawChipStack(QPainter& p, QPointF base, double radius, int count, const QColor& colour) {
    const double step = radius * 0.28;
    for (int k = 0; k < count; ++k) drawChip(p, QPointF(base.x(), base.y() - k * step), radius, colour);
}

void drawTrophy(QPainter& p, QPointF top) {
    QLinearGradient gold(top.x() - 30, 0, top.x() + 30, 0);
    gold.setColorAt(0, QColor(150, 104, 20));
    gold.setColorAt(0.35, QColor(255, 226, 120));
    gold.setColorAt(0.6, QColor(226, 172, 48));
    gold.setColorAt(1, QColor(132, 88, 14));
    p.setPen(QPen(QColor(110, 72, 10), 1.0));
    p.setBrush(gold);
    const double x = top.x(), y = top.y();
    QPainterPath cup;
    cup.moveTo(x - 30, y);
    cup.lineTo(x + 30, y);
    cup.cubicTo(x + 30, y + 38, x + 14, y + 50, x + 5, y + 54);
    cup.lineTo(x + 5, y + 66);
    cup.lineTo(x + 18, y + 74);
    cup.lineTo(x - 18, y + 74);
    cup.lineTo(x - 5, y + 66);
    cup.lineTo(x - 5, y + 54);
    cup.cubicTo(x - 14, y + 50, x - 30, y + 38, x - 30, y);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(196, 146, 36), 4.0));
    p.drawArc(QRectF(x - 44, y + 4, 24, 26), 90 * 16, 180 * 16);
    p.drawArc(QRectF(x + 20, y + 4, 24, 26), -90 * 16, 180 * 16);
    p.setPen(QPen(QColor(110, 72, 10), 1.0));
    p.setBrush(gold);
    p.drawPath(cup);
    p.drawRect(QRectF(x - 24, y + 74, 48, 9));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 90));
    p.drawEllipse(QRectF(x - 20, y + 6, 8, 28));
}

void drawConfetti(QPainter& p, const QRectF& area, const QRectF& keepClear) {
    Scatter scatter(20240611);
    const std::array<QColor, 5> colours = {QColor(255, 214, 64), QColor(255, 90, 90), QColor(120, 200, 255),
                                           QColor(255, 255, 255), QColor(140, 240, 140)};
    p.setPen(Qt::NoPen);
    for (int k = 0; k < 170; ++k) {
        const QPointF at(scatter.between(area.left(), area.right()),
                         scatter.between(area.top(), area.bottom()));
        const QColor colour = colours[int(scatter.next() * colours.size()) % colours.size()];
        const double angle = scatter.between(0, 180), size = scatter.between(2.0, 4.5);
        if (keepClear.contains(at)) continue;
        p.save();
        p.translate(at);
        p.rotate(angle);
        p.setBrush(colour);
        p.drawRect(QRectF(-size / 2, -size / 4, size, size / 2));
        p.restore();
    }
}

QImage drawWinnerTable() {
    Canvas canvas(758, 517);
    QPainter& p = canvas.p();
    drawTableBase(p, 758, 517, QPointF(378, 280));
    // Golden light over the felt.
    QRadialGradient glow(QPointF(378, 300), 300);
    glow.setColorAt(0, QColor(255, 214, 90, 120));
    glow.setColorAt(0.5, QColor(255, 200, 60, 45));
    glow.setColorAt(1, QColor(255, 200, 60, 0));
    p.save();
    p.setClipPath(feltPath());
    p.fillRect(QRectF(0, 0, 758, 517), glow);
    p.restore();
    // "YOU WON!" stands at the top of the felt: leave it clear and a little darker.
    const QRectF title = twips(4485, 840, 2685, 555);
    const QRectF keepClear = title.adjusted(-60, -30, 60, 40);
    drawConfetti(p, QRectF(10, 10, 738, 497), keepClear);
    drawTrophy(p, QPointF(378, 150));
    // The winnings: stacks before the trophy, back rows first, and loose chips across the felt.
    struct Stack {
        QPointF base;
        int height;
    };
    const std::array<Stack, 9> stacks = {{{{250, 280}, 4},
                                          {{320, 272}, 5},
                                          {{440, 272}, 8},
                                          {{510, 280}, 5},
                                          {{300, 300}, 7},
                                          {{460, 300}, 6},
                                          {{340, 318}, 10},
                                          {{420, 318}, 9},
                                          {{380, 326}, 12}}};
    for (size_t k = 0; k < stacks.size(); ++k) {
        drawChipStack(p, stacks[k].base, 16, stacks[k].height, kChipColours[k % kChipColours.size()]);
    }
    const QRectF trophy(320, 140, 116, 150);
    Scatter scatter(777);
    for (int k = 0; k < 26; ++k) {
        const double angle = scatter.between(0, 2 * M_PI), distance = scatter.between(170, 290);
        const QPointF at(378 + std::cos(angle) * distance, 300 + std::sin(angle) * distance * 0.55);
        if (keepClear.contains(at) || trophy.contains(at)) continue;
        drawChip(p, at, scatter.between(9, 12), kChipColours[k % kChipColours.size()]);
    }
    return canvas.finish();
}

// ---- Small table pieces -------------------------------------------------------

QImage drawArrow(bool pointsRight) {
    Canvas canvas(34, 16);
    QPainter& p = canvas.p();
    p.setPen(QPen(QColor(0, 60, 20), 0.8));
    p.setBrush(QColor(12, 104, 44));
    p.drawRoundedRect(QRectF(0.5, 0.5, 33, 15), 5, 5);
    if (!pointsRight) {
        p.translate(34, 0);
        p.scale(-1, 1);
    }
    QPainterPath arrow;
    arrow.moveTo(4, 6);
    arrow.lineTo(19, 6);
    arrow.lineTo(19, 2.5);
    arrow.lineTo(30, 8);
    arrow.lineTo(19, 13.5);
    arrow.lineTo(19, 10);
    arrow.lineTo(4, 10);
    arrow.closeSubpath();
    p.setPen(QPen(QColor(0, 40, 10, 120), 1.0));
    p.setBrush(Qt::white);
    p.drawPath(arrow);
    return canvas.finish();
}

QImage drawDealerButton() {
    Canvas canvas(34, 34);
    QPainter& p = canvas.p();
    const QPointF centre(17, 17);
    QRadialGradient face(QPointF(13, 12), 20);
    face.setColorAt(0, QColor(255, 255, 255));
    face.setColorAt(1, QColor(214, 214, 206));
    p.setPen(QPen(QColor(60, 60, 60), 1.0));
    p.setBrush(face);
    p.drawEllipse(centre, 16, 16);
    p.setPen(QPen(QColor(140, 140, 134), 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(centre, 13.5, 13.5);
    // As large as fits inside the inner ring.
    const QFont font = pixelFont("Liberation Sans Narrow", 10, true);
    const double width = QFontMetricsF(font).horizontalAdvance("DEALER");
    p.translate(centre);
    p.scale(std::min(1.0, 25.0 / width) * 1.0, 1.0);
    drawText(p, QRectF(-20, -6, 40, 12), Qt::AlignCenter, "DEALER", font, QColor(20, 20, 20));
    return canvas.finish();
}

// ---- Logo, icon, tip ----------------------------------------------------------

// A small card for the emblems: white, a big index and a pip.
void drawMiniCard(QPainter& p, QPointF pivot, double angle, const QString& rank, Suit suit) {
    p.save();
    p.translate(pivot);
    p.rotate(angle);
    const QRectF card(-17, -58, 34, 48);
    p.setPen(QPen(QColor(120, 120, 120), 0.8));
    p.setBrush(Qt::white);
    p.drawRoundedRect(card, 3.5, 3.5);
    drawText(p, QRectF(card.left() + 1, card.top() + 1, 12, 11), Qt::AlignCenter, rank,
             pixelFont("Liberation Sans", 10, true), suitColour(suit));
    drawSuit(p, suit, QPointF(card.left() + 7, card.top() + 16), 6);
    drawSuit(p, suit, QPointF(card.center().x() + 2, card.center().y() + 4), 17);
    p.restore();
}

void drawRedChipFace(QPainter& p, QPointF centre, double radius, bool withSpade) {
    p.setPen(QPen(QColor(90, 0, 0), radius * 0.04));
    p.setBrush(QColor(196, 22, 30));
    p.drawEllipse(centre, radius, radius);
    p.setPen(QPen(QColor(250, 250, 246), radius * 0.2, Qt::SolidLine, Qt::FlatCap));
    p.setBrush(Qt::NoBrush);
    const QRectF ring(centre.x() - radius * 0.88, centre.y() - radius * 0.88, radius * 1.76, radius * 1.76);
    for (int k = 0; k < 6; ++k) p.drawArc(ring, k * 960 + 180, 240);
    p.setPen(QPen(QColor(250, 250, 246), radius * 0.05));
    p.setBrush(withSpade ? QColor(250, 250, 246) : QColor(196, 22, 30));
    p.drawEllipse(centre, radius * 0.6, radius * 0.6);
    if (withSpade) drawSuit(p, kSpades, centre, radius * 0.8);
}

QImage drawLogo() {
    Canvas canvas(109, 108);
    QPainter& p = canvas.p();
    const QPointF centre(54.5, 54);
    QRadialGradient felt(QPointF(48, 44), 60);
    felt.setColorAt(0, kFeltLight);
    felt.setColorAt(1, kFeltEdge);
    p.setPen(QPen(QColor(186, 140, 40), 3.0));
    p.setBrush(felt);
    p.drawEllipse(centre, 51, 51);
    p.setPen(QPen(QColor(255, 222, 130), 0.8));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(centre, 47.5, 47.5);
    const QPointF pivot(54.5, 92);
    drawMiniCard(p, pivot, -24, "Q", kDiamonds);
    drawMiniCard(p, pivot, -8, "K", kClubs);
    drawMiniCard(p, pivot, 8, "A", kHearts);
    drawMiniCard(p, pivot, 24, "A", kSpades);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 70));
    p.drawEllipse(QPointF(79, 84), 14.5, 14.5);
    drawRedChipFace(p, QPointF(77.5, 82.5), 13.5, false);
    return canvas.finish();
}

// ---- The program's icon -------------------------------------------------------
// Two aces and a chip as filled shapes on a square of kIconUnits, so that the
// same shapes give the scalable desktop icon and every bitmap size. The smallest
// sizes show the chip alone: the cards would be a blur there.

constexpr double kIconUnits = 256;
const std::array<int, 8> kIconSizes = {16, 22, 24, 32, 48, 64, 128, 256};
constexpr int kLargestPlainChipIcon = 24;
const QColor kIconWhite(250, 250, 246);

struct Shape {
    QPainterPath path;
    QColor colour;
};

void addSuit(std::vector<Shape>& shapes, Suit suit, const QTransform& at, QPointF centre, double size,
             const QColor& colour) {
    QTransform t;
    t.translate(centre.x(), centre.y());
    t.scale(size, size);
    t.translate(-0.5, -0.5);
    for (const QPainterPath& part : suitShape(suit)) shapes.push_back({(t * at).map(part), colour});
}

void addAce(std::vector<Shape>& shapes, Suit suit, QPointF pivot, double angle) {
    QTransform at;
    at.translate(pivot.x(), pivot.y());
    at.rotate(angle);
    const QRectF card(-56, -180, 112, 160);
    QPainterPath edge, body, rank;
    edge.addRoundedRect(card.adjusted(-4, -4, 4, 4), 15, 15);
    body.addRoundedRect(card, 11, 11);
    QFont font("Liberation Sans");
    font.setPixelSize(44);
    font.setBold(true);
    rank.addText(card.left() + 9, card.top() + 42, font, "A");
    shapes.push_back({at.map(edge), QColor(64, 64, 70)});
    shapes.push_back({at.map(body), kIconWhite});
    shapes.push_back({at.map(rank), suitColour(suit)});
    addSuit(shapes, suit, at, QPointF(card.left() + 22, card.top() + 60), 24, suitColour(suit));
    addSuit(shapes, suit, at, card.center() + QPointF(6, 14), 72, suitColour(suit));
}

QPainterPath disc(QPointF centre, double radius) {
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

void addChip(std::vector<Shape>& shapes, QPointF centre, double r, bool shadow) {
    if (shadow) shapes.push_back({disc(centre + QPointF(3, 6), r), QColor(0, 0, 0, 80)});
    shapes.push_back({disc(centre, r), QColor(110, 6, 12)});
    shapes.push_back({disc(centre, r * 0.93), QColor(204, 24, 32)});
    const QRectF outer(centre - QPointF(r * 0.93, r * 0.93), QSizeF(r * 1.86, r * 1.86));
    const QRectF inner(centre - QPointF(r * 0.68, r * 0.68), QSizeF(r * 1.36, r * 1.36));
    for (int k = 0; k < 6; ++k) {
        const double from = k * 60 + 15, span = 30;
        QPainterPath spot;
        spot.arcMoveTo(outer, from);
        spot.arcTo(outer, from, span);
        spot.arcTo(inner, from + span, -span);
        spot.closeSubpath();
        shapes.push_back({spot, kIconWhite});
    }
    shapes.push_back({disc(centre, r * 0.6), kIconWhite});
    shapes.push_back({disc(centre, r * 0.53), QColor(204, 24, 32)});
    addSuit(shapes, kSpades, QTransform(), centre, r * 0.62, kIconWhite);
}

std::vector<Shape> iconShapes(int pixels) {
    std::vector<Shape> shapes;
    if (pixels <= kLargestPlainChipIcon) {
        addChip(shapes, QPointF(128, 128), 126, false);
        return shapes;
    }
    addAce(shapes, kHearts, QPointF(100, 236), -14);
    addAce(shapes, kSpades, QPointF(118, 236), 10);
    addChip(shapes, QPointF(184, 190), 60, true);
    // Centred, and as large as the square allows with a small margin.
    QRectF bounds;
    for (const Shape& shape : shapes) bounds |= shape.path.boundingRect();
    const double margin = 6, scale = (kIconUnits - 2 * margin) / std::max(bounds.width(), bounds.height());
    QTransform fit;
    fit.translate(kIconUnits / 2, kIconUnits / 2);
    fit.scale(scale, scale);
    fit.translate(-bounds.center().x(), -bounds.center().y());
    for (Shape& shape : shapes) shape.path = fit.map(shape.path);
    return shapes;
}

QImage drawIconAt(int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(pixels / kIconUnits, pixels / kIconUnits);
    p.setPen(Qt::NoPen);
    for (const Shape& shape : iconShapes(pixels)) {
        p.setBrush(shape.colour);
        p.drawPath(shape.path);
    }
    return image;
}

QString svgNumber(double v) { return QString::number(std::round(v * 100) / 100, 'g', 8); }

QString svgPathData(const QPainterPath& path) {
    QString d;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        const char* command = e.isMoveTo() ? "M" : e.isLineTo() ? "L" : e.isCurveTo() ? "C" : " ";
        d += command + svgNumber(e.x) + " " + svgNumber(e.y);
    }
    return d;
}

QByteArray drawIconSvg() {
    QString svg = QString(
                      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%1\" "
                      "viewBox=\"0 0 %1 %1\">\n")
                      .arg(kIconUnits);
    for (const Shape& shape : iconShapes(int(kIconUnits))) {
        svg += QString("<path fill=\"%1\"").arg(shape.colour.name());
        if (shape.colour.alpha() < 255)
            svg += QString(" fill-opacity=\"%1\"").arg(svgNumber(shape.colour.alphaF()));
        if (shape.path.fillRule() == Qt::OddEvenFill) svg += " fill-rule=\"evenodd\"";
        svg += " d=\"" + svgPathData(shape.path) + "\"/>\n";
    }
    return (svg + "</svg>\n").toUtf8();
}

// The window's own icon is the same picture.
QImage drawIcon() { return drawIconAt(48 * kScale); }

QImage drawTipBulb() {
    Canvas canvas(32, 32);
    QPainter& p = canvas.p();
    // Rays.
    p.setPen(QPen(QColor(250, 190, 30), 1.4, Qt::SolidLine, Qt::RoundCap));
    const QPointF glass(16, 12.5);
    for (int k = 0; k < 7; ++k) {
        const double a = M_PI * (1.0 + k / 6.0);
        p.drawLine(glass + QPointF(std::cos(a) * 11, std::sin(a) * 11),
                   glass + QPointF(std::cos(a) * 14.5, std::sin(a) * 14.5));
    }
    QRadialGradient shine(QPointF(13.5, 9.5), 10);
    shine.setColorAt(0, QColor(255, 255, 220));
    shine.setColorAt(0.5, QColor(255, 232, 90));
    shine.setColorAt(1, QColor(236, 176, 20));
    QPainterPath bulb;
    bulb.moveTo(12.5, 22);
    bulb.cubicTo(12.5, 18.5, 8, 16.5, 8, 12);
    bulb.cubicTo(8, 7.5, 11.5, 4.5, 16, 4.5);
    bulb.cubicTo(20.5, 4.5, 24, 7.5, 24, 12);
    bulb.cubicTo(24, 16.5, 19.5, 18.5, 19.5, 22);
    bulb.closeSubpath();
    p.setPen(QPen(QColor(160, 110, 0), 0.9));
    p.setBrush(shine);
    p.drawPath(bulb);
    p.setPen(QPen(QColor(190, 130, 20), 0.7));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF(
        {QPointF(14, 21.5), QPointF(14.5, 15), QPointF(16, 17), QPointF(17.5, 15), QPointF(18, 21.5)}));
    // The screw base.
    QLinearGradient metal(12, 0, 20, 0);
    metal.setColorAt(0, QColor(120, 120, 126));
    metal.setColorAt(0.4, QColor(226, 226, 232));
    metal.setColorAt(1, QColor(110, 110, 116));
    p.setPen(QPen(QColor(70, 70, 76), 0.6));
    p.setBrush(metal);
    p.drawRoundedRect(QRectF(12.3, 22, 7.4, 6), 1.2, 1.2);
    p.drawLine(QPointF(12.5, 24), QPointF(19.5, 24));
    p.drawLine(QPointF(12.5, 26), QPointF(19.5, 26));
    p.setBrush(QColor(70, 70, 76));
    p.drawRoundedRect(QRectF(14, 28, 4, 2), 1, 1);
    return canvas.finish();
}

// ---- Help and rules pages -----------------------------------------------------

// Below this the pages are no longer comfortable to read at their size on screen.
constexpr double kSmallestText = 10.5;

// Lays the page's text out at the largest size, from 12.5 pixels down, that fits the page.
QImage drawPage(int width, int height, const Page& page, int number) {
    Canvas canvas(width, height);
    QPainter& p = canvas.p();
    const QColor paper(252, 249, 240), band(18, 84, 48);
    p.setPen(QPen(QColor(176, 164, 136), 1));
    p.setBrush(paper);
    p.drawRect(QRectF(0.5, 0.5, width - 1, height - 1));
    const QRectF titleBand(0.5, 0.5, width - 1, 24);
    p.setPen(Qt::NoPen);
    p.setBrush(band);
    p.drawRect(titleBand);
    drawText(p, titleBand.adjusted(10, 0, -10, 0), Qt::AlignVCenter | Qt::AlignLeft, page.title,
             pixelFont("Liberation Sans", 14, true), Qt::white);
    drawText(p, titleBand.adjusted(10, 0, -10, 0), Qt::AlignVCenter | Qt::AlignRight,
             QString("Page %1 of 2").arg(number), pixelFont("Liberation Sans", 10), QColor(206, 232, 214));

    const QRectF body(9, 29, width - 18, height - 33);
    QTextDocument doc;
    doc.setDocumentMargin(0);
    doc.setIndentWidth(14);
    doc.setTextWidth(body.width());
    double size = 12.5;
    for (; size >= kSmallestText; size -= 0.25) {
        doc.setDefaultFont(pixelFont("Liberation Sans", size));
        doc.setDefaultStyleSheet(pageStyle(size));
        doc.setHtml(page.body);
        if (doc.size().height() <= body.height()) break;
    }
    if (size < kSmallestText) {
        std::fprintf(stderr, "page \"%s\" does not fit: %.0f of %.0f px\n", qPrintable(page.title),
                     doc.size().height(), body.height());
        std::exit(1);
    }
    std::printf("  %-28s text %.2f px, %3.0f of %3.0f px used\n", qPrintable(page.title), size,
                doc.size().height(), body.height());
    p.translate(body.topLeft());
    doc.drawContents(&p, QRectF(0, 0, body.width(), body.height()));
    return canvas.finish();
}

// ---- Preview ------------------------------------------------------------------

struct CardPlace {
    QRectF first, second;
};

QImage drawPreview(const QImage& table, const std::vector<QImage>& faces, const QImage& back,
                   const QImage& arrowRight, const QImage& arrowLeft, const QImage& dealer) {
    Canvas canvas(755, 508);
    QPainter& p = canvas.p();
    p.drawImage(QRectF(0, 0, 757, 527), table);
    const std::array<CardPlace, 8> cards = {{
        {twips(5280, 5520, 1065, 1440), twips(5520, 5520, 1065, 1440)},
        {twips(1440, 5280, 1065, 1440), twips(1680, 5280, 1065, 1440)},
        {twips(240, 2760, 1095, 1455), twips(480, 2760, 1095, 1455)},
        {twips(1440, 840, 1095, 1455), twips(1680, 840, 1095, 1455)},
        {twips(5160, 840, 1095, 1455), twips(5400, 840, 1095, 1455)},
        {twips(8760, 840, 1065, 1440), twips(9000, 840, 1065, 1440)},
        {twips(9840, 2760, 1065, 1440), twips(10080, 2760, 1065, 1440)},
        {twips(8880, 5280, 1065, 1440), twips(9120, 5280, 1065, 1440)},
    }};
    const std::array<QRectF, 8> arrows = {twips(4680, 5640, 510, 240), twips(2880, 5640, 510, 240),
                                          twips(1680, 3600, 510, 240), twips(2880, 1560, 510, 240),
                                          twips(4560, 1560, 510, 240), twips(8160, 1440, 510, 240),
                                          twips(9240, 3360, 510, 240), twips(8280, 5760, 510, 240)};
    const std::array<QRectF, 8> buttons = {twips(4680, 6720, 510, 510),  twips(840, 6600, 510, 510),
                                           twips(120, 4680, 510, 510),   twips(840, 600, 510, 510),
                                           twips(4560, 480, 510, 510),   twips(8160, 600, 510, 510),
                                           twips(10680, 2160, 510, 510), twips(10320, 6480, 510, 510)};
    for (int seat = 1; seat <= 8; ++seat) {
        const CardPlace& c = cards[seat - 1];
        p.drawImage(c.first, seat == 1 ? faces[12] : back);
        p.drawImage(c.second, seat == 1 ? faces[25] : back);
        const bool left = seat >= 2 && seat <= 4;
        p.drawImage(arrows[seat - 1], left ? arrowLeft : arrowRight);
        p.drawImage(buttons[seat - 1], dealer);
        const SeatLabels& l = kSeatLabels[seat - 1];
        drawText(p, l.name, Qt::AlignCenter, QString("Player Name %1").arg(seat),
                 pixelFont("Liberation Sans", 13, true), seat == 1 ? QColor(255, 255, 0) : Qt::white);
        drawText(p, l.dollar, Qt::AlignRight | Qt::AlignVCenter, "Chips: $",
                 pixelFont("Liberation Sans", 11, true), Qt::white);
        drawText(p, l.bank.adjusted(0, 0, 60, 0), Qt::AlignLeft | Qt::AlignVCenter, "1,250,000",
                 pixelFont("Liberation Sans", 11, true), Qt::white);
    }
    const std::array<int, 5> board = {8, 22, 35, 48, 11};
    const std::array<double, 5> boardLeft = {3000, 4080, 5160, 6240, 7320};
    for (int k = 0; k < 5; ++k) p.drawImage(twips(boardLeft[k], 3120, 1065, 1440), faces[board[k]]);
    drawText(p, twips(4680, 4710, 1095, 375), Qt::AlignRight | Qt::AlignVCenter, "Pot: $",
             pixelFont("Liberation Sans", 18), Qt::white);
    drawText(p, twips(5760, 4710, 1450, 360), Qt::AlignLeft | Qt::AlignVCenter, "12,400",
             pixelFont("Liberation Sans", 18), Qt::white);
    return canvas.finish();
}

// ---- Output -------------------------------------------------------------------

bool save(const QImage& image, const QString& folder, const QString& name, bool opaque = false) {
    const QImage out =
        opaque ? image.convertToFormat(QImage::Format_RGB888) : image.convertToFormat(QImage::Format_ARGB32);
    const QString path = folder + "/" + name;
    if (!out.save(path, "PNG", 9)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

bool saveIcons(const QString& folder) {
    if (!QDir().mkpath(folder)) return false;
    bool ok = true;
    for (int pixels : kIconSizes)
        ok &= save(drawIconAt(pixels), folder, QString("holdem_%1.png").arg(pixels));
    QFile svg(folder + "/holdem.svg");
    return ok && svg.open(QIODevice::WriteOnly | QIODevice::Truncate) && svg.write(drawIconSvg()) > 0;
}

bool fontsPresent() {
    const QStringList families = QFontDatabase::families();
    for (const char* family : {"Liberation Sans", "Liberation Sans Narrow", "Liberation Serif"}) {
        if (!families.contains(family)) {
            std::fprintf(stderr, "font \"%s\" is missing (make deps installs it)\n", family);
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QString folder = HOLDEM_PICTURES_DIR;
    QString previewPath;
    QString iconFolder = HOLDEM_ICONS_DIR;
    const QStringList args = app.arguments();
    for (int i = 1; i < args.size(); ++i) {
        if (args[i] == "--preview" && i + 1 < args.size()) {
            previewPath = args[++i];
        } else if (args[i] == "--icons" && i + 1 < args.size()) {
            iconFolder = args[++i];
        } else {
            folder = args[i];
        }
    }
    if (!fontsPresent() || !QDir().mkpath(folder)) return 1;

    bool ok = true;
    std::vector<QImage> faces;
    for (int suit = 0; suit < 4; ++suit) {
        for (int rank = 0; rank < 13; ++rank) {
            faces.push_back(drawCardFace(Suit(suit), rank));
            ok &= save(faces.back(), folder, QString("card_%1.png").arg(faces.size(), 2, 10, QChar('0')));
        }
    }
    const QImage back = drawCardBack(), table = drawTable();
    const QImage arrowRight = drawArrow(true), arrowLeft = drawArrow(false), dealer = drawDealerButton();
    ok &= save(back, folder, "card_back.png");
    ok &= save(table, folder, "table.png", true);
    ok &= save(drawWinnerTable(), folder, "table_winner.png", true);
    ok &= save(arrowRight, folder, "arrow_right.png");
    ok &= save(arrowLeft, folder, "arrow_left.png");
    ok &= save(dealer, folder, "dealer.png");
    ok &= save(drawLogo(), folder, "logo.png");
    ok &= save(drawIcon(), folder, "icon.png");
    ok &= save(drawTipBulb(), folder, "tip.png");
    ok &= saveIcons(iconFolder);
    const std::array<QSize, 4> pageSizes = {QSize(401, 478), QSize(397, 425), QSize(406, 365),
                                            QSize(402, 407)};
    const std::array<QString, 4> pageFiles = {"help1.png", "help2.png", "rules1.png", "rules2.png"};
    const std::vector<Page> pages = helpAndRulesPages();
    for (size_t k = 0; k < pages.size(); ++k) {
        const QImage page = drawPage(pageSizes[k].width(), pageSizes[k].height(), pages[k], int(k % 2) + 1);
        ok &= save(page, folder, pageFiles[k], true);
    }
    if (!previewPath.isEmpty()) {
        ok &= drawPreview(table, faces, back, arrowRight, arrowLeft, dealer).save(previewPath, "PNG");
    }
    return ok ? 0 : 1;
}
