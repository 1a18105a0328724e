#include "gen_pictures_pages.h"

#include <QStringList>

namespace {

// "Ah Td 7s" as cards in their colours: A of hearts, 10 of diamonds, 7 of spades.
QString cards(const QString& list) {
    QStringList out;
    for (const QString& card : list.split(' ', Qt::SkipEmptyParts)) {
        const QString rank = card.left(1) == "T" ? QString("10") : card.left(1);
        const QChar suit = card.at(1);
        const bool red = suit == 'h' || suit == 'd';
        const QString symbol = suit == 'h'   ? QString(QChar(0x2665))
                               : suit == 'd' ? QString(QChar(0x2666))
                               : suit == 's' ? QString(QChar(0x2660))
                                             : QString(QChar(0x2663));
        out << QString("<span class=\"%1\">%2%3</span>").arg(red ? "red" : "black", rank, symbol);
    }
    return "<span class=\"cards\">" + out.join("&nbsp;") + "</span>";
}

QString helpTable() {
    return R"(
<p class="head">The table</p>
<p>You sit in seat 1 at the bottom middle; your name is in yellow. Up to seven
computer players sit round the table, clockwise from your left. Each seat shows
the player's name, chips and two cards. You see your own cards; the others are
turned up only at the showdown.</p>
<p>The white disc marks the dealer. The white arrow points at the player whose turn
it is, and at the end of a hand it marks the winners. The shared cards are dealt
face up in the middle: the flop (three cards), the turn and the river.</p>
<p>Click the pot to see how much each player has put into it. After a hand it shows
that hand until the next deal.</p>
<p class="head">Your turn</p>
<p>When the action comes to you, four buttons appear to the right of your cards and
"Amount to Call" shows what you owe. A button that does not apply is dimmed.</p>
<ul>
<li><b>Check</b>: pass without betting, when there is nothing to call.</li>
<li><b>Call</b>: put in the amount to call. With fewer chips you call all in.</li>
<li><b>Bet/Raise</b>: bet, or raise the bet; opens the bet window. You cannot
raise your own bet.</li>
<li><b>Fold</b>: give up the hand. It is played out without you.</li>
</ul>
<p>Underlined letters work with Alt: Alt+H, Alt+C, Alt+B, Alt+F; between hands
Alt+D, Alt+S, Alt+V.</p>
<p class="head">The bet window</p>
<p>Type the amount in whole dollars, in steps of $100. When there is a bet to call,
the amount you type is the raise on top of it: the call is added for you, and the
window shows the amount to call and your largest raise. <b>Bet Max</b> fills in
the largest bet or raise, all your chips. <b>OK</b> places the bet, <b>Cancel</b>
takes you back to the buttons. There is no minimum beyond $100.</p>
<p class="head">Between hands</p>
<p>The winners are paid ("Paid $") and three buttons appear: <b>Deal</b> starts
the next hand, <b>Standings</b> lists the field, <b>View Floor</b> shows the
casino floor. The first hand of a new or opened game is dealt at once.</p>
)";
}

QString helpMenus() {
    return R"(
<p class="head">File</p>
<ul>
<li><b>New...</b> (Ctrl+N): a single table of 8 players or a tournament of 80, 200
or 1,000; choose the speed and type your name.</li>
<li><b>Open</b> (Ctrl+O): a saved game (.sgf); it goes on with a new deal.</li>
<li><b>Save</b> (Ctrl+S), <b>Save As</b>: between hands only. A saved game holds
the players and their chips, not a hand in progress.</li>
<li><b>Exit</b>: leave the game; you may be asked to save it first.</li>
</ul>
<p class="head">Tourney, Settings, Help</p>
<ul>
<li><b>Standings</b>, <b>View Floor</b>: at any time; in mid-hand they show the
field as the last hand left it.</li>
<li><b>Sound</b> on or off; the end-of-game sounds always play. <b>Speed</b>: Fast,
Medium or Slow, at once. <b>Tip of the Day</b>: a tip at start.</li>
<li><b>Help</b> (F1): these pages; <b>Hold'em Rules</b>; <b>About</b>.</li>
<li>When a button on the table shows a menu's underlined letter, Alt and the letter
press the button; F10 or a click opens the menus.</li>
</ul>
<p class="head">Standings</p>
<p>Players still in come first, most chips first, then those who are out, best
finish first; 25 to a page. Your line is yellow; when it is on another page it
stands at the foot. "--" marks a player who is out.</p>
<p class="head">Casino floor</p>
<p>Five rooms of 25 tables; each square is a seat. Yellow is you, red a computer
player, dark red a player who is out, blue the chip leader (when one player alone
has the most chips). Click a seat to see who sits there.</p>
<p class="head">Tournaments</p>
<p>For each hand at your table every other table plays a hand out of sight. Players
move to keep the tables full, and tables close as the field shrinks; with sound on,
a voice tells you when one to six players join you. The game ends when you have
lost all your chips, or when you hold them all.</p>
)";
}

QString rulesPlay() {
    return R"(
<p>Each player gets two cards face down; five shared cards follow face up: the flop
(three), the turn and the river. A hand is the best five of a player's seven cards.</p>
<p class="head">Blinds</p>
<p>Everyone starts with $10,000. The dealer button moves one seat to the left each
hand; the next two players post the small blind and the large blind, twice as much.
The blinds start at $100 and $200 and rise as players are knocked out, not with time
or hands. Single table, small blind: $100 with 7 or 8 players left, $200 with 5 or
6, $400 with 4, $600 with 3, $1,000 with 2. Tournaments climb to $8,000 (80
players), $15,000 (200) or $35,000 (1,000). An exit counts from the hand after next.</p>
<p class="head">Betting</p>
<p>Before the flop the player after the large blind acts first, later the first
player after the dealer. No limit: bet or raise up to all your chips, in steps of
$100. Computer players raise at most once per betting round; you may raise again
whenever someone has raised after you.</p>
<p class="head">All in and side pots</p>
<p>A player short of chips calls all in and wins from each opponent at most what he
put in: the chips form a main pot and side pots, each won by the best hand among
those who put into it. Chips nobody matched go back to their owner.</p>
<p class="head">Showdown and ties</p>
<p>If all but one fold, the last player wins without showing. Otherwise all hands are
shown and the best wins. Equal hands split a pot in $100s; odd hundreds go one at a
time to the tied players, the first in finish order first: $500 split two ways pays
$300 and $200.</p>
)";
}

QString rulesHands() {
    struct Row {
        const char* name;
        const char* example;
        const char* note;
    };
    const Row rows[] = {
        {"Royal flush", "As Ks Qs Js Ts", "All royal flushes tie."},
        {"Straight flush", "9h 8h 7h 6h 5h", "Five in sequence, one suit. Equal heights tie."},
        {"Four of a kind", "7s 7h 7d 7c Ks", "Then the fifth card. Four Aces tie whatever it is."},
        {"Full house", "Qs Qh Qd 4c 4s", "The three decide, then the pair."},
        {"Flush", "Kc Jc 8c 6c 2c", "Five of one suit, compared from the top card."},
        {"Straight", "Td 9s 8h 7c 6d", "Ace high or low (5-4-3-2-A). Equal heights tie."},
        {"Three of a kind", "8h 8c 8s Kd 3c", "Then the other two cards."},
        {"Two pair", "Js Jd 4h 4c Ac", "High pair, low pair, then the fifth card."},
        {"One pair", "Th Tc Ad 7s 2h", "The pair, then the other three cards."},
        {"High card", "As Jd 8c 5h 3s", "Compared card by card from the top."},
    };
    QString html =
        "<p>From the best hand down. Only the best five cards count, and suits never "
        "break a tie.</p><table class=\"hands\" cellspacing=\"0\" cellpadding=\"2\" width=\"100%\">";
    int number = 1;
    for (const Row& row : rows) {
        html +=
            QString("<tr><td class=\"n\">%1.</td><td><b>%2</b><br/>%3</td><td class=\"note\">%4</td></tr>")
                .arg(number++)
                .arg(row.name, cards(row.example), row.note);
    }
    html += "</table>";
    html += "<p>Example: you hold " + cards("As Kd") + " and the board is " + cards("Ah 9c 9d 5s 2h") +
            ". Your hand is two pair, Aces and Nines, with the King.</p>";
    return html;
}

}  // namespace

std::vector<Page> helpAndRulesPages() {
    return {
        {"Help: playing at the table", helpTable()},
        {"Help: menus and the field", helpMenus()},
        {"Rules: no-limit Texas Hold'em", rulesPlay()},
        {"Rules: ranking of hands", rulesHands()},
    };
}

QString pageStyle(double size) {
    const int heading = int(size * 1.15 + 0.5), small = int(size * 0.92 + 0.5), gap = int(size * 0.35 + 0.5);
    return QString(R"(
        body { color: #1e1e1e; }
        p { margin-top: 0px; margin-bottom: %3px; }
        p.head { font-size: %1px; font-weight: bold; color: #125430; margin-top: %3px; margin-bottom: 0px; }
        ul { margin-top: 0px; margin-bottom: %3px; margin-left: 0px; -qt-list-indent: 1; }
        li { margin-bottom: 1px; }
        .red { color: #c41220; font-weight: bold; }
        .black { color: #161616; font-weight: bold; }
        .keys { color: #125430; font-weight: bold; }
        .n { color: #125430; font-weight: bold; }
        .note { font-size: %2px; color: #333333; }
        td { padding-bottom: 2px; }
    )")
        .arg(heading)
        .arg(small)
        .arg(gap);
}
