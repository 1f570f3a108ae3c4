#pragma once

#include <QLabel>
#include <QMouseEvent>

// A label that answers a press, for the rows of the match screen.
class ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

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
