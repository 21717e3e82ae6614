// SPDX-License-Identifier: MIT
#include "app/messagewindow.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace vesk {

using namespace Qt::StringLiterals;

MessageWindow::MessageWindow(QQmlEngine &engine, const Content &content)
    : m_view(&engine, nullptr)
    , m_isRejectCostly(content.isRejectCostly)
{
    m_view.setTitle(tr("Vesk: %1").arg(content.heading));
    m_view.setFlags(Qt::Dialog);
    m_view.setResizeMode(QQuickView::SizeViewToRootObject);
    m_view.setInitialProperties({{u"heading"_s, content.heading},
                                 {u"message"_s, content.message},
                                 {u"acceptLabel"_s, content.acceptLabel},
                                 {u"rejectLabel"_s, content.rejectLabel},
                                 {u"details"_s, content.details},
                                 {u"isRejectCostly"_s, content.isRejectCostly}});
    m_view.setSource(QUrl(u"qrc:/qt/qml/Vesk/App/MessageView.qml"_s));
    connect(m_view.rootObject(), SIGNAL(accepted()), this, SIGNAL(accepted()));
    connect(m_view.rootObject(), SIGNAL(rejected()), this, SLOT(onRejected()));
    fit();
    m_view.installEventFilter(this);
}

MessageWindow::~MessageWindow()
{
    m_view.removeEventFilter(this);
}

void MessageWindow::show()
{
    m_view.show();
    m_view.raise();
    m_view.requestActivate();
}

void MessageWindow::hide()
{
    m_view.hide();
}

void MessageWindow::setAcceptLabel(const QString &label)
{
    m_view.rootObject()->setProperty("acceptLabel", label);
}

void MessageWindow::setDetails(const QString &details)
{
    m_view.rootObject()->setProperty("details", details);
    fit();
}

void MessageWindow::fit()
{
    const QSize size = m_view.rootObject()->size().toSize();
    m_view.setMinimumSize(size);
    m_view.setMaximumSize(size);
}

bool MessageWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isEscape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (isEscape && m_isRejectCostly)
        return true;
    if (isEscape || event->type() == QEvent::Close) {
        Q_EMIT rejected(Rejection::ByClosing);
        return isEscape;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vesk
