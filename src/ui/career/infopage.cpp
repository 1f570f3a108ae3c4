#include "infopage.h"

#include "common/theme.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace ui {

const QUrl &InfoPage::handballSite()
{
    static const QUrl site(QStringLiteral("https://es.wikipedia.org/wiki/Balonmano"));
    return site;
}

QUrl InfoPage::historyPage()
{
    QUrl page = handballSite();
    page.setFragment(QStringLiteral("Historia"));
    return page;
}

InfoPage::InfoPage(Kind kind, QWidget *parent) : QDialog(parent), m_kind(kind)
{
    m_page = new QTextBrowser;
    m_page->setObjectName(QStringLiteral("pagina"));
    m_page->setOpenExternalLinks(true);

    QString heading;
    switch (kind) {
    case Kind::Instructions: {
        setObjectName(QStringLiteral("Instrucciones"));
        setWindowTitle(tr("Instrucciones"));
        heading = tr("INSTRUCCIONES");
        QFile help(QStringLiteral(":/content/instrucciones.htm"));
        if (help.open(QIODevice::ReadOnly))
            m_page->setHtml(QString::fromUtf8(help.readAll()));
        break;
    }
    case Kind::History:
    case Kind::Handball: {
        const bool history = kind == Kind::History;
        setObjectName(history ? QStringLiteral("Historia") : QStringLiteral("infoHandball"));
        setWindowTitle(history ? tr("Historia de Balonmano - Wikipedia") : tr("Balonmano - Wikipedia"));
        heading = history ? tr("HISTORIA DEL BALONMANO") : tr("INFORMACIÓN SOBRE BALONMANO");
        showOpened(true);
        break;
    }
    }

    auto *back = theme::backButton();
    connect(back, &QPushButton::clicked, this, &QDialog::hide);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(back);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(theme::heading(heading));
    layout->addWidget(m_page, 1);
    layout->addLayout(buttons);
}

void InfoPage::showOpened(bool opened)
{
    if (m_kind == Kind::Instructions)
        return;
    const QUrl address = m_kind == Kind::History ? historyPage() : handballSite();
    const QString said = opened ? tr("La página se ha abierto en tu navegador de Internet.</p>"
                                     "<p>Si no aparece, puedes abrirla tú mismo en esta dirección:")
                                : tr("No se ha podido abrir la página en tu navegador de Internet.</p>"
                                     "<p>Puedes abrirla tú mismo en esta dirección:");
    // Markup on purpose: the page is the game's own text, with its own address as a link, and
    // nothing the player typed goes into it.
    m_page->setHtml(QStringLiteral("<div style='font-family: sans-serif; margin: 24px;'><h2>%1</h2><p>%2<br>"
                                   "<a href='%3'>%3</a></p></div>")
                        .arg(windowTitle(), said, address.toString()));
}

} // namespace ui
