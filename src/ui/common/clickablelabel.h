#pragma once

#include <QLabel>
#include <QMouseEvent>

// A label that answers a press, for the rows of the match screen. Its text is shown as it
// is, never read as markup: the rows carry players' names.
class ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget *parent = nullptr) : ClickableLabel(QString(), parent) {}
    explicit ClickableLabel(const QString &text, QWidget *parent = nullptr) : QLabel(text, parent)
    {
        setTextFormat(Qt::PlainText);
    }

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
