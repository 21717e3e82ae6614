// SPDX-License-Identifier: MIT
#include "panel/panelwindow.h"

#include "components/surroundings.h"
#include "panel/panelmodel.h"
#include "panel/panelplacement.h"
#include "platform/appearance.h"
#include "platform/application.h"
#include "platform/logging.h"
#include "platform/screens.h"
#include "platform/windows.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

// Made by the build. Naming it keeps the module's registration when the library is linked.
extern void qml_register_types_Vesk_Panel(); // NOLINT(readability-identifier-naming): not our name

namespace vesk {

namespace {

constexpr qreal kCornerRadius = 34;
constexpr int kFadeInMilliseconds = 200;
constexpr std::chrono::milliseconds kSettled{250};
constexpr std::chrono::milliseconds kScreensSettled{1000};

} // namespace

PanelWindow::PanelWindow(QQmlEngine &engine, PanelModel &model, Application &application, Screens &screens,
                         Windows &windows)
    : m_model(model)
    , m_application(application)
    , m_screens(screens)
    , m_windows(windows)
    , m_surroundings(Surroundings::of(engine))
    , m_view(&engine, nullptr)
    , m_fadeIn(&m_view, "opacity")
{
    [[maybe_unused]] static const volatile auto registration = &qml_register_types_Vesk_Panel;
    m_view.setTitle(u"Vesk"_s);
    m_view.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    // Also asks for a window that can be translucent, should a compositor be there or come.
    m_view.setColor(Qt::transparent);
    m_view.setMinimumWidth(qRound(kPanelWidth));
    m_view.setMaximumWidth(qRound(kPanelWidth));
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.resize(qRound(kPanelWidth), qRound(model.height()->wanted()));
    m_askedHeight = m_view.height();
    m_view.setInitialProperties(
        {{u"model"_s, QVariant::fromValue(&model)}, {u"cornerRadius"_s, kCornerRadius}});
    m_view.setSource(QUrl(u"qrc:/qt/qml/Vesk/Panel/PanelRoot.qml"_s));
    m_view.installEventFilter(this);

    m_fadeIn.setDuration(kFadeInMilliseconds);
    m_fadeIn.setStartValue(0.0);
    m_fadeIn.setEndValue(1.0);

    connect(&model, &PanelModel::showRequested, this, [this] {
        if (!m_view.isActive())
            showPanel();
    });
    connect(&application, &Application::didHide, this, [this] {
        hideWindow();
        m_model.becomeHidden();
    });
    connect(&application, &Application::didResignActive, this, [this] {
        hideWindow();
        m_model.becomeInactive();
    });
    connect(model.height(), &PanelHeight::edgePressed, this, [this] { m_isEdgeHeld = true; });
    m_settling.setSingleShot(true);
    m_settling.setInterval(kSettled);
    connect(&m_settling, &QTimer::timeout, this, &PanelWindow::settle);
    m_screensSettling.setSingleShot(true);
    m_screensSettling.setInterval(kScreensSettled);
    connect(&screens, &Screens::changed, this, [this] {
        m_screensSettling.start();
        settle();
        m_settling.start();
    });
    const auto onResized = [this] {
        m_windows.setCornerRadius(m_view, kCornerRadius);
        m_settling.start();
    };
    connect(&m_view, &QWindow::heightChanged, this, onResized);
    connect(&m_view, &QWindow::widthChanged, this, onResized);
    connect(&m_view, &QWindow::screenChanged, this, onResized);
    connect(&windows, &Windows::compositedChanged, this, [this] {
        m_fadeIn.stop();
        m_view.setOpacity(1);
        m_windows.setCornerRadius(m_view, kCornerRadius);
    });
    QTimer::singleShot(0, this, &PanelWindow::prepareAhead);
}

PanelWindow::~PanelWindow()
{
    // What is being composed in the open note would go with its editor.
    m_model.becomeInactive();
}

void PanelWindow::prepareAhead()
{
    // Makes the window and draws it once in memory, which the first show would else have to wait for.
    if (isShown())
        return;
    m_view.create();
    m_view.grabWindow();
}

void PanelWindow::showPanel()
{
    qCDebug(panelLog) << "panel shown";
    // First of all: what the user types from here on is meant for the panel.
    m_application.holdKeys();
    position(m_screens.screenUnderMouse());
    m_model.prepareToShow();
    const bool isComingUp = m_application.isHidden() || !isShown();
    const bool fades =
        isComingUp && m_windows.isComposited() && !m_surroundings.appearance().shouldReduceMotion();
    if (fades)
        m_view.setOpacity(0);
    if (!isShown())
        m_windows.prepare(m_view, Windows::Kind::Panel);
    m_windows.setCornerRadius(m_view, kCornerRadius);
    m_application.unhide();
    m_view.show();
    m_view.raise();
    m_application.activate(m_view);
    if (fades)
        m_fadeIn.start();
}

void PanelWindow::togglePanel()
{
    if (m_application.isActive() && isShown())
        m_application.hide();
    else
        showPanel();
}

void PanelWindow::position(const std::optional<Screen> &screen)
{
    if (!screen)
        return;
    adoptHeight();
    const QRectF frame = panelFrame(screen->visibleFrame, m_model.height()->wanted());
    m_askedHeight = frame.height();
    if (frame == m_screens.flipped(m_view.geometry()))
        return;
    // Where the desktop places windows by itself, the size at least is the panel's own.
    if (!m_windows.setFrame(m_view, frame))
        m_view.resize(frame.size().toSize());
}

void PanelWindow::adoptHeight()
{
    // Scaled screens round.
    constexpr qreal kTolerance = 1;
    if (!m_isEdgeHeld && !m_screensSettling.isActive()
        && std::abs(m_view.height() - m_askedHeight) > kTolerance)
        m_model.height()->setWanted(m_view.height());
}

void PanelWindow::dragEdge(qreal mouseY)
{
    const std::optional<Screen> screen = ownScreen();
    if (!screen)
        return;
    const qreal height = m_view.geometry().bottom() + 1 - (mouseY - m_grip);
    m_model.height()->setWanted(panelFrame(screen->visibleFrame, height).height());
    position(screen);
}

void PanelWindow::dropEdge()
{
    if (!std::exchange(m_isEdgeHeld, false))
        return;
    m_model.height()->remember();
    m_settling.start();
}

void PanelWindow::settle()
{
    position(ownScreen());
    m_windows.setCornerRadius(m_view, kCornerRadius);
}

std::optional<Screen> PanelWindow::ownScreen() const
{
    const QList<Screen> all = m_screens.screens();
    const QPointF middle = m_screens.flipped(m_view.geometry()).center();
    for (const Screen &screen : all) {
        if (screen.frame.contains(middle))
            return screen;
    }
    return all.isEmpty() ? std::nullopt : std::optional(all.first());
}

void PanelWindow::hideWindow()
{
    qCDebug(panelLog) << "panel hidden";
    m_fadeIn.stop();
    dropEdge();
    m_view.hide();
    m_view.setOpacity(1);
}

void PanelWindow::handleMouse(const QMouseEvent &event)
{
    const qreal mouseY = event.globalPosition().y();
    if (event.type() == QEvent::MouseButtonPress)
        m_grip = mouseY - m_view.y();
    else if (m_isEdgeHeld && event.buttons().testFlag(Qt::LeftButton))
        dragEdge(mouseY);
    else
        dropEdge();
}

bool PanelWindow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return m_model.handleKey(*static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        // By the place on the screen, since the window moves under the mouse.
        handleMouse(*static_cast<QMouseEvent *>(event));
        return false;
    case QEvent::Close:
        // The panel only ever hides, also when the desktop asks its window to close.
        event->ignore();
        m_application.hide();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

} // namespace vesk
