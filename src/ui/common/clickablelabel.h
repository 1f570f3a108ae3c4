#pragma once

#include "elidedlabel.h"

#include <QMouseEvent>

// A label that answers a press, for the rows of the match screen. Its text is shown as it
// is, never read as markup, and cut with "…" when it does not fit: the rows carry players'
// names.
class ClickableLabel : public ui::ElidedLabel
{
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget *parent = nullptr) : ClickableLabel(QString(), parent) {}
    explicit ClickableLabel(const QString &text, QWidget *parent = nullptr) : ui::ElidedLabel(text, parent) {}

signals:
    void pressed();

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton)
            emit pressed();
        QLabel::mousePressEvent(event);
    }
};
