// Helpers of the field-view tests: stnd.dat files in the game's format, and
// screenshots of a form.
#pragma once

#include <QColor>
#include <QDir>
#include <QPalette>
#include <QTemporaryDir>
#include <QWidget>
#include <fstream>
#include <string>
#include <vector>

namespace holdem::test {

struct StndRecord {
    int tag = 0;
    std::string name;
    int bank = 0, place = 0, number = 0;
};

// The header "count,12,3,200", then one line per record; returns the path.
inline std::string WriteStnd(const QTemporaryDir& dir, const std::vector<StndRecord>& records, int count = -1,
                             const QString& name = "stnd.dat") {
    const std::string path = dir.filePath(name).toStdString();
    std::ofstream out(path, std::ios::binary);
    out << (count < 0 ? static_cast<int>(records.size()) : count) << ",12,3,200\r\n";
    for (const StndRecord& r : records)
        out << r.tag << ",\"" << r.name << "\"," << r.bank << "," << r.place << "," << r.number << "\r\n";
    return path;
}

// n players still in with 10,000 each, numbered by position; the user is 1.
inline std::vector<StndRecord> EvenField(int n) {
    std::vector<StndRecord> field;
    for (int p = 1; p <= n; ++p)
        field.push_back({p % 7, p == 1 ? "You" : "Player " + std::to_string(p), 10000, 0, p});
    return field;
}

inline QColor TextColour(const QWidget* w) {
    return w->palette().color(QPalette::Active, QPalette::WindowText);
}

// Saved beside the test programs, to be looked at.
inline bool SaveScreenshot(QWidget& form, const QString& name) {
    return form.grab().save(QDir::current().filePath(name + ".png"));
}

}  // namespace holdem::test
