#pragma once

#include <QLabel>
#include <QString>

namespace ui {

// A label that shows its text exactly as it is. A QLabel left to itself guesses whether a
// text is markup, so a manager who calls himself "<i>Zoë</i>" would be shown in italics and
// "O'Brien & <b>Co</b>" would lose its tags; names typed by the player and names read from
// the database must always read as they were written.
inline QLabel *plainLabel(const QString &text = {}, QWidget *parent = nullptr)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace ui
