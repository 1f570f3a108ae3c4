#pragma once

#include <QLabel>

namespace ui {

// A club's crest that answers the pointer: hovering names the club, a click chooses it.
class CrestButton : public QLabel
{
    Q_OBJECT

public:
    CrestButton(int clubId, const QString &caption, int side, QWidget *parent = nullptr);

    int clubId() const { return m_clubId; }
    const QString &caption() const { return m_caption; }
    void setChosen(bool chosen);

signals:
    void hovered(const QString &caption);
    void left();
    void clicked(int clubId, const QString &caption);

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    int m_clubId;
    QString m_caption;
};

} // namespace ui
