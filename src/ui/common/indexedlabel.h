#pragma once

#include "plainlabel.h"

#include <QLabel>
#include <QWidget>

// Rows of a screen that repeat the same widget (the five slots of the planner, the rows of
// the calendar) share one name and tell themselves apart by an "index" property, 0 first.
// Such rows carry clubs' and players' names, so their text is plain, never markup.
namespace indexed {

inline QLabel *label(const char *name, int index, QWidget *parent = nullptr)
{
    QLabel *widget = ui::plainLabel({}, parent);
    widget->setObjectName(QString::fromLatin1(name));
    widget->setProperty("index", index);
    return widget;
}

// The widget of that name and index among parent's children, or nullptr.
template<typename T = QLabel>
T *find(const QObject *parent, const QString &name, int index)
{
    for (T *widget : parent->findChildren<T *>(name)) {
        if (widget->property("index").toInt() == index)
            return widget;
    }
    return nullptr;
}

} // namespace indexed
