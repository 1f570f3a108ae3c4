#include "loadscreen.h"

#include "common/artwork.h"
#include "common/rowsmodel.h"
#include "common/theme.h"
#include "dialogs.h"
#include "league/careerrow.h"
#include "money.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

namespace ui {

namespace {

using Record = game::SaveRecord;

const QSize kCrest(24, 24);

// Where the career stood, as the list says it.
QString weekOf(const Record &save)
{
    if (save.stage == QLatin1String("planificando"))
        return QObject::tr("Pretemporada");
    if (save.stage == QLatin1String("veredicto"))
        return QObject::tr("Fin de temporada");
    return QString::number(save.week);
}

} // namespace

LoadScreen::LoadScreen(game::Context context, const game::Saves &saves, QWidget *parent)
    : Page("Cargar", tr("Cargar partida"), tr("CARGAR PARTIDA"), parent), m_context(context), m_saves(saves)
{
    setFrame(28, 14, 10);
    m_rows = new RowsModel<Record>(
        {{tr("Equipo"), [](const Record &s) { return s.clubName; }},
         {tr("Entrenador"), [](const Record &s) { return s.manager(); }},
         {tr("Temporada"), [](const Record &s) { return game::seasonYears(s.season); }},
         {tr("Semana"), weekOf},
         {tr("Guardada"),
          [](const Record &s) { return s.savedAt.toString(QStringLiteral("dd/MM/yyyy hh:mm")); }},
         {tr("Presupuesto"), [](const Record &s) { return game::euros(s.budget); }}},
        this);
    m_rows->setDecoration(0, [](const Record &s) { return artwork::crest(s.club, kCrest); });
    m_table = new QTableView;
    m_table->setObjectName(QStringLiteral("DGPartidas"));
    m_table->setModel(m_rows);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->setIconSize(kCrest);
    m_table->verticalHeader()->setVisible(false);
    m_table->verticalHeader()->setDefaultSectionSize(kCrest.height() + 10);
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_table, &QTableView::doubleClicked, this, [this] {
        if (const Record *save = chosen())
            emit loadRequested(save->path);
    });

    m_empty = theme::label("hint", tr("No hay carreras guardadas. Empieza una nueva desde el menú: se guardará "
                                      "sola cada semana."));
    m_empty->setObjectName(QStringLiteral("lblSinPartidas"));
    m_empty->setWordWrap(true);

    m_remove = new QPushButton(tr("BORRAR"));
    m_remove->setObjectName(QStringLiteral("cmdBorrar"));
    m_remove->setProperty("role", QStringLiteral("secondary"));
    connect(m_remove, &QPushButton::clicked, this, &LoadScreen::removeChosen);
    m_load = new QPushButton(tr("CARGAR"));
    m_load->setObjectName(QStringLiteral("cmdCargar"));
    connect(m_load, &QPushButton::clicked, this, [this] {
        if (const Record *save = chosen())
            emit loadRequested(save->path);
    });
    foot()->addWidget(m_remove);
    foot()->addWidget(m_load);

    addWidget(m_empty);
    addWidget(m_table, 1);
    setHint(tr("Elige una carrera y pulsa CARGAR para seguirla donde la dejaste."));
    refresh();
}

void LoadScreen::refresh()
{
    m_rows->setRows(m_saves.list());
    const bool any = m_rows->rowCount() > 0;
    m_empty->setVisible(!any);
    m_table->setVisible(any);
    m_load->setEnabled(any);
    m_remove->setEnabled(any);
    if (any)
        m_table->selectRow(0);
    m_table->resizeColumnsToContents();
}

const game::SaveRecord *LoadScreen::chosen() const
{
    const QModelIndexList picked = m_table->selectionModel()->selectedRows();
    if (picked.isEmpty())
        return nullptr;
    return &m_rows->row(picked.front().row());
}

void LoadScreen::removeChosen()
{
    const Record *save = chosen();
    if (!save)
        return;
    const QString question = tr("¿Borrar la carrera de %1 con el %2 (%3)? No se podrá recuperar.")
                                 .arg(save->manager(), save->clubName, game::seasonYears(save->season));
    if (!m_context.dialogs.ask(tr("Borrar partida"), question))
        return;
    if (const game::Result removed = m_saves.remove(save->path); !removed)
        m_context.dialogs.tell(removed.message(), game::Dialogs::Icon::Exclamation);
    refresh();
}

} // namespace ui
