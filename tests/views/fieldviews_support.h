// Small helpers of the field-view tests: stnd.dat files written in the game's
// format, and screenshots of a form.
#pragma once

#include <QColor>
#include <QDir>
#include <QPalette>
#include <QString>
#include <QTemporaryDir>
#include <QWidget>
#include <fstream>
#include <string>
#include <vector>

namespace holdem::test {

struct StndRecord {
    int tag = 0;
    std::string name;
    int bank = 0;
    int place = 0;
    int number = 0;
};

// Writes a header "count,HandsPlayed,ButtonSeat,SmallBlind" and one line per
// record, each ending in CR LF, and returns the path.
inline std::string WriteStnd(const QTemporaryDir& dir, const std::vector<StndRecord>& records, int count = -1,
                             const std::string& name = "stnd.dat") {
    std::string path = dir.filePath(QString::fromStdString(name)).toStdString();
    std::ofstream out(path, std::ios::binary);
    out << (count < 0 ? static_cast<int>(records.size()) : count) << ",12,3,200\r\n";
    for (const StndRecord& r : records)
        out << r.tag << ",\"" << r.name << "\"," << r.bank << "," << r.place << "," << r.number << "\r\n";
    return path;
}

// A field of n players still in, 10,000 each, numbered by position; the user
// is number 1 at position 1.
inline std::vector<StndRecord> EvenField(int n) {
    std::vector<StndRecord> field;
    for (int p = 1; p <= n; ++p)
        field.push_back({p % 7, p == 1 ? "You" : "Player " + std::to_string(p), 10000, 0, p});
    return field;
}

inline QColor TextColour(const QWidget* w) {
    return w->palette().color(QPalette::Active, QPalette::WindowText);
}

// Saves the form as a picture beside the test programs, to be looked at.
inline bool SaveScreenshot(QWidget& form, const QString& name) {
    return form.grab().save(QDir::current().filePath(name + ".png"));
}

}  // namespace holdem::test
