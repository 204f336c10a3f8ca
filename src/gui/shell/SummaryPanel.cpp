#include "SummaryPanel.h"

#include "load/Summary.h"
#include "platform/Accessibility.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "platform/Twips.h"
#include "platform/Widgets.h"

#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <algorithm>

namespace quillet {

void place(QWidget* widget, const TwipsRect& rect)
{
    place(widget, rect.left, rect.top, rect.width, rect.height);
}

QAction* addMenuItem(QMenu* menu, const MenuItem& item, std::function<void()> handler)
{
    QAction* action = menu->addAction(latin(item.caption));
    action->setObjectName(latin(item.name));
    QObject::connect(action, &QAction::triggered, menu, std::move(handler));
    return action;
}

SummaryPanel::SummaryPanel(QWidget* client, const SummaryLayout& layout, SummaryForm& form)
{
    auto* picture4 = new PictureBox(client);
    picture4->setObjectName(QStringLiteral("Picture4"));
    picture4->setAccessibleName(QStringLiteral("Longitudinal balance"));
    place(picture4, layout.Picture4);
    picture4->setCanvas(dynamic_cast<QtCanvas*>(&form.Picture4()));
    nameForScreenReaders(picture4, latin(kLabel2Text));
    auto* picture3 = new PictureBox(client);
    picture3->setObjectName(QStringLiteral("Picture3"));
    picture3->setAccessibleName(QStringLiteral("Lateral balance"));
    place(picture3, layout.Picture3);
    picture3->setCanvas(dynamic_cast<QtCanvas*>(&form.Picture3()));
    nameForScreenReaders(picture3, latin(kLabel3Text));
    m_picture4 = picture4;
    m_picture3 = picture3;

    QLabel* caption4 = label(client, "Label2", layout.Label2);
    caption4->setText(latin(kLabel2Text));
    caption4->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QLabel* caption3 = label(client, "Label3", layout.Label3);
    caption3->setText(latin(kLabel3Text));
    caption3->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QLabel* heading = label(client, "Label1", layout.Label1);
    heading->setText(latin(kLabel1Text));
    QFont headingFont(latin(kLabel1Font));
    headingFont.setPointSizeF(kLabel1Points);
    headingFont.setBold(true);
    heading->setFont(headingFont);

    m_lblbow = label(client, "lblbow", layout.lblbow);
    m_lblpax = label(client, "lblpax", layout.lblpax);
    m_lblmf = label(client, "lblmf", layout.lblmf);
    m_lbltot = label(client, "lbltot", layout.lbltot);
    for (QLabel* right : {m_lblbow, m_lblpax, m_lblmf, m_lbltot})
        right->setAlignment(Qt::AlignRight | Qt::AlignTop);
    m_warning = label(client, "warning", layout.warning);
    m_warning->setWordWrap(true);
    m_lblpass = label(client, "lblpass", layout.lblpass);
    m_lblmaxtow = label(client, "lblmaxtow", layout.lblmaxtow);
    m_lblmaxfuel = label(client, "lblmaxfuel", layout.lblmaxfuel);

    // Line1 runs across the form under the load line.
    const TwipsLine& line = layout.Line1;
    auto* rule = new QFrame(client);
    rule->setObjectName(QStringLiteral("Line1"));
    const int left = twipsToPixels(std::min(line.x1, line.x2));
    rule->setGeometry(left, twipsToPixels(line.y1), twipsToPixels(std::max(line.x1, line.x2)) - left + 1, 1);
    rule->setStyleSheet(QStringLiteral("background-color: black;"));
}

QLabel* SummaryPanel::label(QWidget* client, const char* name, const TwipsRect& rect)
{
    auto* widget = new QLabel(client);
    widget->setObjectName(QString::fromLatin1(name));
    widget->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    place(widget, rect);
    return widget;
}

void SummaryPanel::sync(const SummaryLabels& labels)
{
    // A load changed away from these labels (on the cabin, by a preset): say the new total and warning.
    const QString total = m_lbltot->text();
    const QString warning = m_warning->isVisibleTo(m_warning->parentWidget()) ? m_warning->text() : QString();
    showState(m_lblbow, labels.lblbow);
    showState(m_lblpax, labels.lblpax);
    showState(m_lblmf, labels.lblmf);
    showState(m_lbltot, labels.lbltot);
    showState(m_warning, labels.warning);
    showState(m_lblpass, labels.lblpass);
    showState(m_lblmaxtow, labels.lblmaxtow);
    showState(m_lblmaxfuel, labels.lblmaxfuel);
    if (m_lbltot->text() != total)
        announce(m_lbltot, m_lbltot->text());
    if (labels.warning.visible && m_warning->text() != warning)
        announce(m_warning, m_warning->text());
    const auto showBalance = [](QWidget* picture, const std::string& text) {
        const QString figures = QString::fromStdString(text);
        picture->setToolTip(figures);
        picture->setAccessibleDescription(figures);
    };
    showBalance(m_picture4, labels.balanceAlong);
    showBalance(m_picture3, labels.balanceAcross);
}

} // namespace quillet
