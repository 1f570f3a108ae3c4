#include "theme.h"

#include "plainlabel.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QFont>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>

namespace theme {

QString styleSheet()
{
    QFile file(QStringLiteral(":/content/zarpazo.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    // The palette: "@amber: #e8a33d;" on a line of its own, read and taken out of the sheet.
    static const QRegularExpression entry(QStringLiteral(R"(^@(\w+):\s*([^;]+);[ \t]*\n?)"),
                                          QRegularExpression::MultilineOption);
    QHash<QString, QString> colours;
    for (const QRegularExpressionMatch &found : entry.globalMatch(sheet))
        colours.insert(found.captured(1), found.captured(2).trimmed());
    sheet.remove(entry);
    // Every use of a name, "@amber", becomes its colour; a name the palette lacks stays as it
    // is, and Qt then ignores the declaration that holds it.
    static const QRegularExpression use(QStringLiteral(R"(@(\w+))"));
    QString resolved;
    resolved.reserve(sheet.size());
    qsizetype from = 0;
    for (const QRegularExpressionMatch &found : use.globalMatch(sheet)) {
        resolved += QStringView(sheet).mid(from, found.capturedStart() - from);
        resolved += colours.value(found.captured(1), found.captured(0));
        from = found.capturedEnd();
    }
    resolved += QStringView(sheet).mid(from);
    return resolved;
}

void apply(QApplication &app)
{
    QFont font = app.font();
    font.setPointSize(11);
    app.setFont(font);
    app.setStyleSheet(styleSheet());
}

QLabel *label(const char *role, const QString &text, QWidget *parent)
{
    QLabel *label = ui::plainLabel(text, parent);
    label->setProperty("role", QString::fromLatin1(role));
    return label;
}

namespace {

class StyledList : public QListWidget
{
public:
    using QListWidget::QListWidget;

protected:
    void showEvent(QShowEvent *event) override
    {
        if (!m_shown) {
            m_shown = true;
            scheduleDelayedItemsLayout();
        }
        QListWidget::showEvent(event);
    }

private:
    bool m_shown = false;
};

} // namespace

QListWidget *list(const char *name, const char *role, QWidget *parent)
{
    auto *list = new StyledList(parent);
    list->setObjectName(QString::fromLatin1(name));
    list->setProperty("role", QString::fromLatin1(role));
    return list;
}

QLabel *heading(const QString &text, QWidget *parent)
{
    QLabel *title = label("heading", text, parent);
    title->setAlignment(Qt::AlignCenter);
    return title;
}

QLabel *fieldCaption(const QString &text, QWidget *parent)
{
    return label("field", text, parent);
}

QPushButton *backButton(QWidget *parent)
{
    auto *button = new QPushButton(QCoreApplication::translate("theme", "<- VOLVER"), parent);
    button->setObjectName(QStringLiteral("cmdVOLVER"));
    button->setProperty("role", QStringLiteral("secondary"));
    return button;
}

void restyle(QWidget *widget, const char *name, const QVariant &value)
{
    if (widget->property(name) == value)
        return;
    widget->setProperty(name, value);
    // The sheet's rules are matched when a widget is polished; one already polished is
    // polished again to pick up the change.
    if (widget->testAttribute(Qt::WA_WState_Polished)) {
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
        widget->update();
    }
}

} // namespace theme
