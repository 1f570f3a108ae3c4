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
    // The game's messages may carry names the player typed or the store's own words; they are
    // shown as written, never read as markup.
    box.setTextFormat(Qt::PlainText);
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
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, currentWindow());
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Yes;
}

} // namespace ui
