// SPDX-License-Identifier: MIT
#include "quicknote/toast.h"

#include "components/surroundings.h"
#include "platform/appearance.h"
#include "platform/clock.h"
#include "platform/screens.h"
#include "platform/windows.h"

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
    , m_surroundings(Surroundings::of(engine))
    , m_view(&engine, nullptr)
    , m_fade(&m_view, "opacity")
{
    [[maybe_unused]] static const volatile auto registration = &qml_register_types_Vesk_QuickNote;
    m_view.setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                    | Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput);
    m_view.setColor(Qt::transparent);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setInitialProperties({{u"message"_s, QString()}, {u"symbol"_s, QString()}});
    m_view.setSource(QUrl(u"qrc:/qt/qml/Vesk/QuickNote/ToastView.qml"_s));
    QTimer::singleShot(0, this, &Toast::prepareAhead);
}

Toast::~Toast() = default;

void Toast::prepareAhead()
{
    if (m_view.isVisible())
        return;
    // Draws once in memory, with the picture and the letters of the most common notice.
    setContent(u"Saved to Vesk"_s, u"checkmark.circle.fill"_s);
    m_view.create();
    m_view.grabWindow();
}

void Toast::show(const QString &message, const QString &symbol)
{
    ++m_notice;
    m_fade.stop();
    // The title comes first: a list of windows that is read as soon as this one is there has it.
    m_view.setTitle(message);
    setContent(message, symbol);
    if (!m_view.isVisible())
        m_windows.prepare(m_view, Windows::Kind::Notice);
    if (const std::optional<Screen> screen = m_screens.screenUnderMouse()) {
        const QSizeF size = m_view.size();
        const QRectF &visible = screen->visibleFrame;
        m_windows.setFrame(
            m_view,
            QRectF(QPointF(visible.center().x() - size.width() / 2, visible.y() + kHeightAboveBottom), size));
    }
    m_windows.setCornerRadius(m_view, m_view.height() / 2.0);
    m_view.setOpacity(fades() ? 0 : 1);
    m_view.show();
    fade(1, kFadeIn);
    leaveLater(this, &m_clock, m_notice);
}

QCoro::Task<> Toast::leaveLater(QPointer<Toast> self, Clock *clock, quint64 notice)
{
    co_await clock->sleep(kStay);
    if (!self || self->m_notice != notice)
        co_return;
    if (self->fades()) {
        self->fade(0, kFadeOut);
        co_await clock->sleep(kFadeOut);
        if (!self || self->m_notice != notice)
            co_return;
    }
    self->m_view.hide();
}

void Toast::setContent(const QString &message, const QString &symbol)
{
    QQuickItem *content = m_view.rootObject();
    content->setProperty("message", message);
    content->setProperty("symbol", symbol);
    m_view.resize(qCeil(content->implicitWidth()), qCeil(content->implicitHeight()));
}

void Toast::fade(qreal opacity, std::chrono::milliseconds duration)
{
    if (!fades())
        return;
    m_fade.stop();
    m_fade.setStartValue(m_view.opacity());
    m_fade.setEndValue(opacity);
    m_fade.setDuration(static_cast<int>(duration.count()));
    m_fade.start();
}

bool Toast::fades() const
{
    return m_windows.isComposited() && !m_surroundings.appearance().shouldReduceMotion();
}

} // namespace vesk
