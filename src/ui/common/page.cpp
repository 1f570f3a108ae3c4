#include "page.h"

#include "theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

Page::Page(const char *name, const QString &title, const QString &heading, const Back &back, QWidget *parent)
    : QWidget(parent), m_column(new QVBoxLayout(this)), m_foot(new QHBoxLayout), m_back(theme::backButton())
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(title);
    // The sheet paints the navy behind every page.
    setAttribute(Qt::WA_StyledBackground);

    m_back->setObjectName(QString::fromLatin1(back.name));
    if (!back.caption.isEmpty())
        m_back->setText(back.caption);
    connect(m_back, &QPushButton::clicked, this, &Page::closeRequested);
    if (back.side == Back::Side::Left) {
        m_foot->addWidget(m_back);
        m_foot->addStretch();
    } else {
        m_foot->addStretch();
        m_foot->addWidget(m_back);
    }

    m_column->setContentsMargins(28, 16, 28, 16);
    m_column->setSpacing(12);
    m_column->addWidget(theme::heading(heading));
    m_column->addLayout(m_foot);
}

void Page::addWidget(QWidget *widget, int stretch, Qt::Alignment alignment)
{
    m_column->insertWidget(m_column->count() - 1, widget, stretch, alignment);
}

void Page::addLayout(QLayout *layout, int stretch)
{
    m_column->insertLayout(m_column->count() - 1, layout, stretch);
}

void Page::addSpacing(int size)
{
    m_column->insertSpacing(m_column->count() - 1, size);
}

void Page::addStretch()
{
    m_column->insertStretch(m_column->count() - 1);
}

QLabel *Page::setHint(const QString &text)
{
    QLabel *hint = theme::label("hint", text);
    // Beside the way back when it leads the foot, else at the start of the foot.
    const int at = m_foot->indexOf(m_back) == 0 ? 1 : 0;
    m_foot->insertSpacing(at, 16);
    m_foot->insertWidget(at + 1, hint);
    return hint;
}

void Page::setFrame(int horizontal, int vertical, int spacing)
{
    m_column->setContentsMargins(horizontal, vertical, horizontal, vertical);
    m_column->setSpacing(spacing);
}

void Page::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        m_back->click();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace ui
