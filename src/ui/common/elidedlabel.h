#pragma once

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace ui {

// A one-line label for a name from the database that may be longer than the room the
// layout gives it. It keeps the whole name as its text and tooltip, and shows as much as
// fits with "…" at the end, so a long club or player never widens the screen and never
// reads as a different name cut in the middle. Plain text, never markup.
class ElidedLabel : public QLabel
{
public:
    explicit ElidedLabel(const QString &text = {}, QWidget *parent = nullptr) : QLabel(text, parent)
    {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        setMinimumWidth(0);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this); // the style sheet's background
        drawFrame(&painter);
        const QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
        style()->drawItemText(&painter, room, int(alignment()), palette(), isEnabled(), shown, foregroundRole());
    }
};

} // namespace ui
