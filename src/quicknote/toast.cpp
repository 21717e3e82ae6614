// SPDX-License-Identifier: MIT
#include "quicknote/toast.h"

#include "components/surroundings.h"
#include "platform/clock.h"
#include "platform/screens.h"
#include "platform/windows.h"

#include <QAccessible>
#include <QQuickItem>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// Made by the build. Naming it keeps the module's registration when the library is linked.
extern void qml_register_types_Vesk_QuickNote(); // NOLINT(readability-identifier-naming): not our name

namespace vesk {

namespace {

constexpr auto kFadeIn = 150ms;
constexpr auto kStay = 1400ms;
constexpr auto kFadeOut = 300ms;
/// From the bottom of the screen's visible frame to the notice.
constexpr qreal kHeightAboveBottom = 60;

} // namespace

Toast::Toast(QQmlEngine &engine, Screens &screens, Windows &windows, Clock &clock)
    : m_screens(screens)
    , m_windows(windows)
    , m_clock(clock)
    , m_view(&engine, nullptr)
    , m_fade(m_view, Surroundings::of(engine))
{
    [[maybe_unused]] static const volatile auto registration = &qml_register_types_Vesk_QuickNote;
    m_view.setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                    | Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput);
    m_view.setColor(Qt::transparent);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setInitialProperties({{u"message"_s, QString()}, {u"symbol"_s, QString()}});
    m_view.setSource(QUrl(u"qrc:/qt/qml/Vesk/QuickNote/ToastView.qml"_s));
    connect(&m_fade, &WindowFade::gone, &m_view, &QWindow::hide);
    connect(&screens, &Screens::changed, this, [this] {
        if (m_view.isVisible() && !m_screens.holdsWhole(m_view.geometry()))
            place();
    });
    QTimer::singleShot(0, this, &Toast::prepareAhead);
}

Toast::~Toast() = default;

void Toast::prepareAhead()
{
    if (m_view.isVisible())
        return;
    // Draws once in memory, with the picture and the letters of the most common notice.
    setContent(notices::kSaved.text(), notices::kSaved.symbol.toString());
    m_view.create();
    m_view.grabWindow();
}

void Toast::show(const QString &message, const QString &symbol)
{
    ++m_notice;
    // The title comes first: a list of windows that is read as soon as this one is there has it.
    m_view.setTitle(message);
    setContent(message, symbol);
    if (!m_view.isVisible())
        m_windows.prepare(m_view, Windows::Kind::Notice);
    place();
    m_windows.setCornerRadius(m_view, m_view.height() / 2.0);
    m_fade.fadeIn(kFadeIn);
    m_view.show();
    // No window manager keeps it above the windows that have come up since it was made.
    m_view.raise();
    announce();
    leaveLater(this, &m_clock, m_notice);
}

QCoro::Task<> Toast::leaveLater(QPointer<Toast> self, Clock *clock, quint64 notice)
{
    co_await clock->sleep(kStay);
    if (!self || self->m_notice != notice)
        co_return;
    self->m_fade.fadeOut(kFadeOut);
}

void Toast::setContent(const QString &message, const QString &symbol)
{
    QQuickItem *content = m_view.rootObject();
    content->setProperty("message", message);
    content->setProperty("symbol", symbol);
    m_view.resize(qCeil(content->implicitWidth()), qCeil(content->implicitHeight()));
}

void Toast::place()
{
    const std::optional<Screen> screen = m_screens.screenUnderMouse();
    if (!screen)
        return;
    const QSizeF size = m_view.size();
    const QRectF &visible = screen->visibleFrame;
    m_windows.setFrame(
        m_view,
        QRectF(QPointF(visible.center().x() - size.width() / 2, visible.y() + kHeightAboveBottom), size));
}

void Toast::announce() const
{
    // What makes screen readers speak is a notification that comes on screen. The window's own coming
    // is not enough: they leave such windows out, and a second notice finds it there.
    QAccessibleEvent event(m_view.rootObject(), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

} // namespace vesk
