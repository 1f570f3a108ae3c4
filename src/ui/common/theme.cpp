#include "theme.h"

#include "plainlabel.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFont>
#include <QLabel>
#include <QPushButton>

namespace theme {

void apply(QApplication &app)
{
    QFont font = app.font();
    font.setPointSize(11);
    app.setFont(font);
    app.setStyleSheet(QStringLiteral(R"(
        QWidget#screen, QDialog { background-color: #0f1e3c; color: #f1f3f8; }
        QLabel { color: #f1f3f8; }
        QLabel[role="heading"] { color: #e8a33d; font-size: 22px; font-weight: bold; letter-spacing: 2px; }
        QLabel[role="value"] { color: #ffffff; font-weight: bold; }
        QLabel[role="hint"] { color: #b9c3d8; font-style: italic; }
        QGroupBox { color: #e8a33d; font-weight: bold; border: 1px solid #3a5486;
                    border-radius: 6px; margin-top: 14px; padding-top: 10px; }
        QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 6px; }
        QLineEdit, QComboBox, QSpinBox { background: #1b2f57; color: #ffffff; border: 1px solid #3a5486;
                    border-radius: 4px; padding: 4px 6px; min-height: 22px; }
        QLineEdit:focus, QComboBox:focus { border-color: #e8a33d; }
        QComboBox QAbstractItemView { background: #1b2f57; color: #ffffff; selection-background-color: #e8a33d;
                    selection-color: #10203f; }
        QPushButton { background-color: #e8a33d; color: #10203f; font-weight: bold; border: none;
                    border-radius: 5px; padding: 8px 22px; min-width: 90px; }
        QPushButton:hover { background-color: #f4bb62; }
        QPushButton:pressed { background-color: #c9872a; }
        QPushButton:disabled { background-color: #5a6682; color: #aab2c5; }
        QPushButton[role="secondary"] { background-color: #2a406d; color: #f1f3f8; }
        QPushButton[role="secondary"]:hover { background-color: #36508a; }
        QScrollBar:horizontal { background: #1b2f57; height: 16px; border-radius: 4px; }
        QScrollBar::handle:horizontal { background: #e8a33d; min-width: 24px; border-radius: 4px; }
        QScrollBar::add-line:horizontal, QScrollBar::sub-line:horizontal { width: 0px; }
        QTextBrowser { background: #fbfbf8; color: #1a1a1a; border: 1px solid #3a5486; }
        QToolTip { background: #fffbe6; color: #10203f; border: 1px solid #e8a33d; }
    )"));
}

QLabel *heading(const QString &text, QWidget *parent)
{
    QLabel *label = ui::plainLabel(text, parent);
    label->setProperty("role", QStringLiteral("heading"));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace theme

namespace theme {

QLabel *fieldCaption(const QString &text, QWidget *parent)
{
    QLabel *label = ui::plainLabel(text, parent);
    label->setStyleSheet(QStringLiteral("color: #b9c3d8; font-weight: bold;"));
    return label;
}

QPushButton *backButton(QWidget *parent)
{
    auto *button = new QPushButton(QCoreApplication::translate("theme", "<- VOLVER"), parent);
    button->setObjectName(QStringLiteral("cmdVOLVER"));
    button->setProperty("role", QStringLiteral("secondary"));
    return button;
}

} // namespace theme
