// SPDX-License-Identifier: MIT
#include "quicknote/quicknotepanel.h"

#include "components/surroundings.h"
#include "notes/noterules.h"
#include "platform/appearance.h"
#include "platform/application.h"
#include "platform/screens.h"
#include "platform/sounds.h"
#include "platform/windows.h"
#include "quicknote/toast.h"

#include <QGuiApplication>
#include <QMouseEvent>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr QSizeF kSize(580, 236);
constexpr qreal kCornerRadius = 26;
constexpr auto kFadeIn = 140ms;
constexpr auto kFadeOut = 120ms;
/// The share of the screen's visible area above the box.
constexpr qreal kShareAbove = 0.26;

} // namespace

QuickNotePanel::QuickNotePanel(const Needs &needs)
    : m_needs(needs)
{
    connect(&m_model, &QuickNoteModel::saveRequested, this, &QuickNotePanel::save);
    connect(&m_model, &QuickNoteModel::closeRequested, this, &QuickNotePanel::close);
    connect(&needs.application, &Application::didResignActive, this, &QuickNotePanel::close);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &QuickNotePanel::onFocusWindowChanged);
    connect(&needs.windows, &Windows::compositedChanged, this, &QuickNotePanel::shape);
    connect(&needs.screens, &Screens::changed, this, [this] {
        if (m_isShowing && !m_needs.screens.holdsWhole(m_view->geometry()))
            place();
    });
}

QuickNotePanel::~QuickNotePanel() = default;

void QuickNotePanel::makeWindow()
{
    m_view = std::make_unique<QQuickView>(&m_needs.engine, nullptr);
    m_view->setTitle(tr("Quick Note"));
    m_view->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    // Also requests a window that can be translucent, in case a compositor is running or starts later.
    m_view->setColor(Qt::transparent);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->setInitialProperties({{u"model"_s, QVariant::fromValue(&m_model)},
                                  {u"controller"_s, QVariant::fromValue(&m_controller)},
                                  {u"cornerRadius"_s, kCornerRadius}});
    m_view->setSource(QUrl(u"qrc:/qt/qml/Vesk/QuickNote/QuickNoteView.qml"_s));
    m_view->installEventFilter(this);
    connect(&m_model, &QuickNoteModel::moveRequested, this, &QuickNotePanel::beginMove);
    connect(m_view.get(), &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            setShowing(false); // The whole program was hidden.
    });

    // The shape is cut in screen pixels.
    connect(m_view.get(), &QWindow::screenChanged, this, &QuickNotePanel::shape);

    m_fade = std::make_unique<WindowFade>(*m_view, Surroundings::of(m_needs.engine));
    connect(m_fade.get(), &WindowFade::gone, m_view.get(), &QWindow::hide);
}

void QuickNotePanel::expect()
{
    m_needs.application.expectKeys();
}

void QuickNotePanel::expectNothing()
{
    m_needs.application.expectNoKeys();
}

void QuickNotePanel::show(Mode mode, const QString &remark)
{
    // Whatever makes room for the box does so before it opens, because window managers move the focus to yet
    // another window when one closes.
    Q_EMIT aboutToOpen();
    // From here on, what the user types is meant for the box.
    m_needs.application.holdKeys();
    m_controller.finishComposing();
    m_model.begin(mode);
    m_model.setRemark(remark);
    if (!m_view)
        makeWindow();
    m_view->setTitle(m_model.title());
    place();
    if (!m_view->isVisible())
        m_needs.windows.prepare(*m_view, Windows::Kind::Panel);
    shape();
    m_fade->fadeIn(kFadeIn);
    m_view->show();
    m_view->raise();
    setShowing(true);
    m_needs.application.activate(*m_view);
    // At once rather than a little later: by then the user may have moved the caret.
    m_controller.forceFocus();
    m_controller.moveCaretToEnd();
}

void QuickNotePanel::close()
{
    if (!m_isShowing)
        return;
    m_controller.finishComposing();
    // Before the fade-out: what is typed now is for the application below.
    m_needs.application.giveKeyboardBack(*m_view);
    m_fade->fadeOut(kFadeOut);
    setShowing(false);
}

void QuickNotePanel::setShowing(bool isShowing)
{
    if (m_isShowing == isShowing)
        return;
    m_isShowing = isShowing;
    m_hadKeyboard = isShowing && QGuiApplication::focusWindow() == m_view.get();
    if (!isShowing)
        Q_EMIT closed();
}

void QuickNotePanel::save()
{
    m_controller.finishComposing();
    using Outcome = noterules::Outcome;
    const noterules::Kept kept = noterules::add(m_needs.store, m_needs.clock, m_model.body());
    if (kept.outcome == Outcome::TooLong)
        m_model.setRemark(tr("This text is too long for a note."));
    if (kept.outcome != Outcome::Added)
        return;
    const bool isSaved = kept.problem.isEmpty();
    // The store has the note, whether or not it is written yet.
    m_model.clear();
    close();
    m_needs.toast.show(isSaved ? notices::kSaved : notices::kNotSaved);
    if (isSaved)
        m_needs.sounds.play(Sounds::Sound::Tink);
}

void QuickNotePanel::place()
{
    const QSizeF size = kSize * Surroundings::of(m_needs.engine).appearance().textFont().scale;
    const std::optional<Screen> screen = m_needs.screens.screenUnderMouse();
    if (!screen) {
        m_view->resize(size.toSize());
        return;
    }
    const QRectF &visible = screen->visibleFrame;
    // With y pointing up, a rectangle's bottom() is its top edge.
    const QPointF corner(visible.center().x() - size.width() / 2,
                         visible.bottom() - kShareAbove * visible.height() - size.height());
    m_isPlaceable = m_needs.windows.setFrame(*m_view, QRectF(corner, size));
    // If the desktop places windows itself, at least set the size.
    if (!m_isPlaceable)
        m_view->resize(size.toSize());
}

void QuickNotePanel::shape()
{
    if (m_view)
        m_needs.windows.setCornerRadius(*m_view, kCornerRadius);
}

void QuickNotePanel::onFocusWindowChanged(const QWindow *window)
{
    m_hadKeyboard = m_hadKeyboard || (window && window == m_view.get());
    // Null means that the focus is still arriving, or that another program has grabbed it briefly. The box
    // stays open when a question of Vesk appears above it, or when another window gets the focus on its way
    // to the box.
    if (!window || window == m_view.get() || window->type() == Qt::Dialog || !m_hadKeyboard)
        return;
    close();
}

void QuickNotePanel::beginMove()
{
    // A window manager that moves the window has the focus meanwhile, and some keep it after the button is
    // released.
    if (!m_isPlaceable) {
        m_view->startSystemMove();
        return;
    }
    m_isMoving = true;
    // The pointer had already moved when this was recognised as dragging; on a busy machine, all the way.
    moveTo(m_pointer);
}

void QuickNotePanel::moveTo(QPoint pointer)
{
    m_pointer = pointer;
    if (m_isMoving)
        m_needs.windows.setFrame(*m_view, m_needs.screens.flipped(QRectF(pointer - m_grip, m_view->size())));
}

bool QuickNotePanel::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        close();
        return true;
    case QEvent::MouseButtonPress:
        m_isMoving = false;
        m_pointer = static_cast<QMouseEvent *>(event)->globalPosition().toPoint();
        m_grip = m_pointer - m_view->position();
        break;
    case QEvent::MouseMove:
        moveTo(static_cast<QMouseEvent *>(event)->globalPosition().toPoint());
        break;
    case QEvent::MouseButtonRelease:
        moveTo(static_cast<QMouseEvent *>(event)->globalPosition().toPoint());
        m_isMoving = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vesk
