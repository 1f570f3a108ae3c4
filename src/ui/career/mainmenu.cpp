#include "mainmenu.h"

#include "common/artwork.h"

#include <QPainter>
#include <QToolButton>

namespace ui {

namespace {

constexpr int kButtonSize = 112;
constexpr int kButtonGap = 28;

} // namespace

MainMenu::MainMenu(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Form1"));
    using artwork::MenuIcon;
    addButton("cmdContinuar", int(MenuIcon::Continue), tr("CONTINUAR: sigue tu última carrera donde la dejaste"),
              &MainMenu::continueRequested);
    addButton("Command4", int(MenuIcon::NewCareer), tr("Nueva carrera: elige tu nombre y tu equipo de la Liga ASOBAL"),
              &MainMenu::newCareerRequested);
    addButton("cmdCargar", int(MenuIcon::Load), tr("CARGAR: elige una de tus carreras guardadas"),
              &MainMenu::loadRequested);
    addButton("Command2", int(MenuIcon::AddYouth), tr("Añadir un jugador juvenil a la cantera"),
              &MainMenu::addYouthRequested);
    addButton("Command1", int(MenuIcon::History), tr("Historia del balonmano (en Internet)"),
              &MainMenu::historyRequested);
    addButton("Command3", int(MenuIcon::Information), tr("Información sobre balonmano (en Internet)"),
              &MainMenu::informationRequested);
    addButton("cmdInstrucciones", int(MenuIcon::Instructions), tr("Instrucciones del juego"),
              &MainMenu::instructionsRequested);
    addButton("Image3", int(MenuIcon::Quit), tr("Salir del juego"), &MainMenu::quitRequested);
}

QToolButton *MainMenu::addButton(const char *name, int icon, const QString &tip, void (MainMenu::*signal)())
{
    auto *button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setCursor(Qt::PointingHandCursor);
    button->setFixedSize(kButtonSize, kButtonSize);
    button->setIconSize(QSize(kButtonSize - 24, kButtonSize - 24));
    button->setIcon(QIcon(artwork::menuIcon(static_cast<artwork::MenuIcon>(icon), button->iconSize() * 2)));
    connect(button, &QToolButton::clicked, this, signal);
    m_buttons.append(button);
    return button;
}

void MainMenu::resizeEvent(QResizeEvent *)
{
    // The buttons stand in one row across the lower part of the picture.
    const int rowWidth = int(m_buttons.size()) * kButtonSize + int(m_buttons.size() - 1) * kButtonGap;
    int x = (width() - rowWidth) / 2;
    const int y = height() - kButtonSize - height() / 8;
    for (QToolButton *button : std::as_const(m_buttons)) {
        button->move(x, y);
        x += kButtonSize + kButtonGap;
    }
}

void MainMenu::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, artwork::menuBackground(size()));
}

} // namespace ui
