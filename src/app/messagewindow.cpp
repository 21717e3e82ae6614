// SPDX-License-Identifier: MIT
#include "app/messagewindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QScreen>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// Room for the window manager's title bar and borders, in points.
constexpr QMargins kFrame(12, 40, 12, 12);

} // namespace

MessageWindow::MessageWindow(QQmlEngine &engine, const Content &content)
    : m_view(&engine, nullptr)
    , m_isRejectCostly(content.isRejectCostly)
{
    m_view.setTitle(tr("Vesk: %1").arg(content.heading));
    // The panel and the quick-note box stay above other windows, and the question must stay above those.
    m_view.setFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
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
    m_view.installEventFilter(this);
    constexpr std::chrono::milliseconds kQuiet{700};
    m_guard.setSingleShot(true);
    m_guard.setInterval(kQuiet);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *window) {
        if (window && window != &m_view && m_view.isVisible())
            m_view.raise();
        // On a busy machine the first keys arrive long after the window was shown.
        if (window == &m_view && m_isUnasked)
            m_guard.start();
    });
}

MessageWindow::~MessageWindow()
{
    m_view.removeEventFilter(this);
}

void MessageWindow::show(Arrival arrival)
{
    m_isUnasked = arrival == Arrival::Unasked;
    if (m_isUnasked)
        m_guard.start();
    if (!m_view.isVisible()) {
        place();
        m_view.rootObject()->setProperty("hasDefaultButton", !m_isUnasked || m_isRejectCostly);
        QMetaObject::invokeMethod(m_view.rootObject(), "takeFocus");
    }
    m_view.show();
    m_view.raise();
    m_view.requestActivate();
}

void MessageWindow::place()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect room = screen->availableGeometry().marginsRemoved(kFrame);
    m_view.setMinimumSize({});
    m_view.setMaximumSize(room.size());
    m_view.rootObject()->setProperty("maximumWidth", room.width());
    m_view.rootObject()->setProperty("maximumHeight", room.height());
    fit();
    const QSize size = m_view.rootObject()->size().toSize();
    m_view.setGeometry({room.center() - QRect({}, size).center(), size});
}

void MessageWindow::hide()
{
    m_guard.stop();
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

bool MessageWindow::isSwallowed(const QKeyEvent &event)
{
    if (m_guard.isActive()) {
        if (event.type() == QEvent::KeyPress)
            m_guard.start();
        return true;
    }
    // A key that is still held was pressed for what the user was doing before.
    const QList<int> answers{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape};
    return event.isAutoRepeat() && answers.contains(event.key());
}

bool MessageWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease
                       || event->type() == QEvent::ShortcutOverride;
    if (isKey && isSwallowed(*static_cast<QKeyEvent *>(event)))
        return true;
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
