#include "crestbutton.h"

#include "common/artwork.h"
#include "common/theme.h"

#include <QMouseEvent>

namespace ui {

CrestButton::CrestButton(int clubId, const QString &caption, int side, QWidget *parent)
    : QLabel(parent), m_clubId(clubId), m_caption(caption)
{
    // A crest shows a picture; should it ever show text, that text is a name, never markup.
    setTextFormat(Qt::PlainText);
    setPixmap(artwork::crest(clubId, QSize(side - 12, side - 12)));
    setAlignment(Qt::AlignCenter);
    setFixedSize(side, side);
    setCursor(Qt::PointingHandCursor);
    setToolTip(caption);
    setChosen(false);
}

void CrestButton::setChosen(bool chosen)
{
    theme::restyle(this, "chosen", chosen);
}

void CrestButton::enterEvent(QEnterEvent *event)
{
    QLabel::enterEvent(event);
    emit hovered(m_caption);
}

void CrestButton::leaveEvent(QEvent *event)
{
    QLabel::leaveEvent(event);
    emit left();
}

void CrestButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked(m_clubId, m_caption);
    QLabel::mouseReleaseEvent(event);
}

} // namespace ui
