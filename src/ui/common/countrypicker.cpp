#include "countrypicker.h"

#include "artwork.h"
#include "career/preseason.h"
#include "plainlabel.h"
#include "theme.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace ui {

CountryPicker::CountryPicker(const Options &options, ClubsOf clubsOf, QWidget *parent)
    : QGroupBox(options.title, parent), m_clubsOf(std::move(clubsOf)), m_flagsPerRow(options.flagsPerRow),
      m_column(new QVBoxLayout(this)), m_grid(new QGridLayout), m_chosen(plainLabel()),
      m_hovered(theme::label("hint")), m_clubs(theme::list("DataList1", "clubs"))
{
    m_chosen->setObjectName(QStringLiteral("lblPaisSel"));
    m_hovered->setObjectName(QStringLiteral("lblPaises"));
    m_hovered->setMinimumHeight(22);
    m_grid->setSpacing(6);
    for (const game::Preseason::Country &country : game::Preseason::countries())
        addFlag(QString::fromUtf8(country.button), QString::fromUtf16(country.caption), country.code);
    if (options.withNorway)
        addFlag(QStringLiteral("cmdNoruega"), tr("NORUEGA"), artwork::kNorway);

    connect(m_clubs, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) { emit clubPicked(item->text()); });

    m_column->addWidget(m_chosen);
    m_column->addLayout(m_grid);
    m_column->addWidget(m_hovered);
    m_column->addWidget(m_clubs, 1);
}

void CountryPicker::addFlag(const QString &name, const QString &caption, int flag)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setText(caption);
    button->setToolTip(caption);
    button->setProperty("caption", caption);
    button->setIcon(QIcon(artwork::flag(flag, QSize(96, 64))));
    button->setIconSize(QSize(54, 36));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setFixedSize(66, 46);
    button->setCursor(Qt::PointingHandCursor);
    button->installEventFilter(this);
    if (flag != artwork::kNorway) {
        connect(button, &QToolButton::clicked, this, [this, flag, caption] {
            m_chosen->setText(caption);
            listClubs(flag);
        });
    }
    m_grid->addWidget(button, m_flags / m_flagsPerRow, m_flags % m_flagsPerRow);
    ++m_flags;
}

void CountryPicker::listClubs(int code)
{
    m_clubs->clear();
    m_clubs->addItems(m_clubsOf(code));
}

bool CountryPicker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        m_hovered->setText(watched->property("caption").toString());
    else if (event->type() == QEvent::Leave)
        m_hovered->clear();
    return QGroupBox::eventFilter(watched, event);
}

} // namespace ui
