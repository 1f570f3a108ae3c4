#include "messageboxdialogs.h"

#include <QApplication>
#include <QMessageBox>

namespace ui {

namespace {

QWidget *currentWindow()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

} // namespace

void MessageBoxDialogs::tell(const QString &text, Icon icon, const QString &title)
{
    QMessageBox box(currentWindow());
    box.setWindowTitle(title.isEmpty() ? QStringLiteral("Zarpazo") : title);
    box.setText(text);
    switch (icon) {
    case Icon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case Icon::Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case Icon::None:
        break;
    }
    box.exec();
}

bool MessageBoxDialogs::ask(const QString &title, const QString &text)
{
    return QMessageBox::question(currentWindow(), title, text, QMessageBox::Yes | QMessageBox::No)
           == QMessageBox::Yes;
}

} // namespace ui
