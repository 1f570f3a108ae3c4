#include "verdictscreen.h"

#include "common/artwork.h"
#include "common/plainlabel.h"
#include "common/theme.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

const QSize kCrest(150, 150);

QLabel *value(const char *name, const QString &text)
{
    QLabel *label = theme::label("cell", text);
    label->setObjectName(QString::fromLatin1(name));
    label->setMinimumHeight(30);
    return label;
}

// A caption over the two clubs at the bottom of the table: the last first.
QVBoxLayout *bottomPair(const QString &title, const char *lastName, const char *secondLastName,
                        const game::SeasonClose::Verdict &verdict)
{
    auto *block = new QVBoxLayout;
    block->setSpacing(6);
    block->addWidget(theme::label("caption", title));
    block->addWidget(value(lastName, verdict.last));
    block->addWidget(value(secondLastName, verdict.secondLast));
    return block;
}

} // namespace

VerdictScreen::VerdictScreen(const game::SeasonClose::Verdict &verdict, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(QStringLiteral("Finall"));
    setWindowTitle(tr("Resultados Finales"));
    setModal(true);

    // The champion: its crest over its name.
    QLabel *crest = plainLabel();
    crest->setObjectName(QStringLiteral("Imagen"));
    crest->setFixedSize(kCrest);
    crest->setAlignment(Qt::AlignCenter);
    if (verdict.champion > 0)
        crest->setPixmap(artwork::crest(verdict.champion, kCrest));
    QLabel *champion = plainLabel(verdict.championName);
    champion->setObjectName(QStringLiteral("win"));
    champion->setAlignment(Qt::AlignCenter);
    champion->setWordWrap(true);
    QLabel *title = theme::heading(tr("CAMPEÓN DE LA LIGA ASOBAL"));
    title->setWordWrap(true);
    auto *championBlock = new QVBoxLayout;
    championBlock->setSpacing(12);
    championBlock->addWidget(title);
    championBlock->addWidget(crest, 0, Qt::AlignHCenter);
    championBlock->addWidget(champion);
    championBlock->addStretch();

    // The bottom two: the same clubs go down and buy their places back.
    auto *bottom = new QHBoxLayout;
    bottom->setSpacing(16);
    bottom->addLayout(bottomPair(tr("Desciende:"), "dos", "uno", verdict));
    bottom->addLayout(bottomPair(tr("Compra Plaza:"), "compra1", "Compra2", verdict));

    auto *yours = new QGroupBox(tr("TUS RESULTADOS"));
    auto *yoursLayout = new QHBoxLayout(yours);
    yoursLayout->setContentsMargins(14, 12, 14, 12);
    yoursLayout->addWidget(theme::label("caption", tr("Posición Alcanzada:")));
    QLabel *place = value("pos", QString::number(verdict.userPlace));
    place->setAlignment(Qt::AlignCenter);
    place->setFixedWidth(70);
    yoursLayout->addWidget(place);
    yoursLayout->addStretch();

    auto *ok = new QPushButton(tr("OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);

    // The season it closes, by its years: a career reads many verdicts.
    QLabel *season = theme::label("section", tr("Temporada %1").arg(verdict.years));
    season->setObjectName(QStringLiteral("lblTemporada"));

    auto *right = new QVBoxLayout;
    right->setSpacing(18);
    right->addWidget(season);
    right->addLayout(bottom);
    right->addWidget(yours);
    right->addStretch();
    right->addLayout(buttons);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(28);
    layout->addLayout(championBlock, 5);
    layout->addLayout(right, 6);
    setFixedSize(800, 370);
}

void VerdictScreen::reject()
{
}

void VerdictScreen::closeEvent(QCloseEvent *event)
{
    event->ignore();
}

} // namespace ui
