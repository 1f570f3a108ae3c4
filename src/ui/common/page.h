#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QVBoxLayout;

namespace ui {

// The frame of every report and management screen: its name, the window's title, the heading
// at the top, and at the foot the way back, which closeRequested() reports; Escape does what
// that button does. Between the heading and the foot each screen puts its own body.
//
//   class CalendarScreen : public Page {
//       CalendarScreen(...) : Page("Calendario", tr("El Calendario"), tr("EL CALENDARIO")) {
//           addLayout(grid);
//           addStretch();
//       }
//   };
class Page : public QWidget
{
    Q_OBJECT

public:
    // The way back. Most screens have "<- VOLVER" ("cmdVOLVER") standing alone at the right of
    // the foot; screens whose own buttons stand at the right put it first, at the left, and a
    // few name it in their own words ("CANCELAR").
    struct Back
    {
        enum class Side { Right, Left };
        Side side = Side::Right;
        const char *name = "cmdVOLVER";
        QString caption = {}; // "<- VOLVER" when empty
    };

    Page(const char *name, const QString &title, const QString &heading, const Back &back, QWidget *parent = nullptr);
    Page(const char *name, const QString &title, const QString &heading, QWidget *parent = nullptr)
        : Page(name, title, heading, Back(), parent)
    {
    }

    QPushButton *backButton() const { return m_back; }

signals:
    void closeRequested();

protected:
    // The body, between the heading and the foot, in the order it is added.
    void addWidget(QWidget *widget, int stretch = 0, Qt::Alignment alignment = {});
    void addLayout(QLayout *layout, int stretch = 0);
    void addSpacing(int size);
    void addStretch();
    // The foot's row: after the way back when it stands at the left, a place for the screen's
    // own buttons at the right.
    QHBoxLayout *foot() const { return m_foot; }
    // One short line for a newcomer, beside the way back.
    QLabel *setHint(const QString &text);
    // The margins and the spacing of the page, for the screens that need more room.
    void setFrame(int horizontal, int vertical, int spacing);

    void keyPressEvent(QKeyEvent *event) override;

private:
    QVBoxLayout *m_column;
    QHBoxLayout *m_foot;
    QPushButton *m_back;
};

} // namespace ui
