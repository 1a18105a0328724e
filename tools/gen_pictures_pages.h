// The text of the two help pages and the two pages of rules, drawn by gen_pictures.
#pragma once

#include <QString>
#include <vector>

struct Page {
    QString title;
    QString body;  // rich text for QTextDocument
};

// help1, help2, rules1, rules2, in that order.
std::vector<Page> helpAndRulesPages();

// The style of the pages for a body text of `size` pixels.
QString pageStyle(double size);
