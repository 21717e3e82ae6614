// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <optional>

namespace vesk {

/// The longest text, in UTF-8 bytes, that Vesk takes from another application.
inline constexpr qsizetype kMaximumReadBytes = qsizetype{16} * 1024 * 1024;

/// Identifies one element of another application's user interface. A value that may outlive the element;
/// every question about it then returns nullopt.
struct AccessibleElement
{
    /// Process that shows the element; 0 for the system-wide element.
    qint64 processIdentifier = 0;
    /// The platform's own identifier of the element; empty for the system-wide and application elements.
    QString address;

    friend bool operator==(const AccessibleElement &, const AccessibleElement &) = default;
};

/// What is known about the text that is selected in the window with the focus.
struct SelectedText
{
    enum class Finding {
        /// `text` is selected.
        Selected,
        /// Nothing is selected that may be read. This is certain: do not try other means. A password field
        /// counts as nothing selected.
        Nothing,
        /// Not known. The caller may ask the application to copy; password fields copy nothing.
        Unknown,
    };

    Finding finding = Finding::Unknown;
    /// Not trimmed. A text of more than `kMaximumReadBytes` may be cut off anywhere beyond that size; the
    /// caller must refuse it. Empty unless the finding is `Selected`.
    QString text = {};
    /// Whether the application has claimed, since the user last pressed a key or a button, that something is
    /// selected in it. What it offers may be a password, so it is not in `text`.
    bool isClaimed = false;
    /// Whether the application did not answer a question in time.
    bool isSilent = false;
};

/// Reads other applications' user interfaces, if the user has agreed to it.
class Accessibility : public QObject
{
    Q_OBJECT

public:
    enum class ElementAttribute {
        /// Of the system-wide element or an application: the element that has the focus. The application's
        /// own element if it offers no elements at all; nullopt if it could not be determined.
        FocusedElement,
        Parent,
        /// Of an application: the web page in its active window, wherever the keyboard is.
        ShownPage,
    };
    enum class StringAttribute {
        /// The platform's role name in lower case; a web page is `kWebAreaRole`.
        Role,
        /// Of a web area: its page's address.
        Url,
    };

    /// The role of an element that shows a web page.
    static const QString kWebAreaRole;

    /// Whether the user has agreed that Vesk reads other applications. While false, nothing is read from
    /// them: every function below returns nullopt or `Unknown`.
    [[nodiscard]] virtual bool isProcessTrusted() const = 0;

    /// Asks the user for that agreement in a window, and returns at once. If the user answers,
    /// `trustChanged` is emitted.
    virtual void askForTrust() = 0;

    /// Returns the title of the window that has the focus in the application with this process identifier;
    /// nullopt if there is no such window or it has no title. Synchronous, because it must be read at the key
    /// press.
    [[nodiscard]] virtual std::optional<QString> focusedWindowTitle(qint64 processIdentifier) const = 0;

    /// Returns another element that `element` refers to. Nullopt if it has none, is gone, or does not answer
    /// within 300 ms.
    virtual QCoro::Task<std::optional<AccessibleElement>> copyElement(AccessibleElement element,
                                                                      ElementAttribute attribute) = 0;

    /// Returns a string of the element, not trimmed. Nullopt if it has no such string, is gone, or does not
    /// answer within 300 ms.
    virtual QCoro::Task<std::optional<QString>> copyString(AccessibleElement element,
                                                           StringAttribute attribute) = 0;

    /// Reads what is selected in the window that has the focus at the time of the call. Never returns the
    /// content of a password field or content that its owner marks as secret. Takes at most 1.2 s, plus the
    /// transfer of a long text as long as that makes progress.
    virtual QCoro::Task<SelectedText> selectedText() = 0;

    /// The element that stands for the whole desktop.
    [[nodiscard]] static AccessibleElement systemWideElement();
    /// The element that stands for one application.
    [[nodiscard]] static AccessibleElement applicationElement(qint64 processIdentifier);

Q_SIGNALS:
    /// Emitted when the user has given or withdrawn the agreement, not for an answer that changes nothing.
    void trustChanged();
};

} // namespace vesk
