// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <optional>

namespace vesk {

/// The longest text, in UTF-8 bytes, that Vesk takes from another application.
inline constexpr qsizetype kMaximumTextBytes = qsizetype{16} * 1024 * 1024;

/// Names one element of another application's user interface. A value that may outlive the element;
/// then it names nothing and every question about it gives nullopt.
struct AccessibleElement
{
    /// Process that shows the element; 0 for the system-wide element.
    qint64 processIdentifier = 0;
    /// The platform's own name for the element; empty for the system-wide and application elements.
    QString address;

    friend bool operator==(const AccessibleElement &, const AccessibleElement &) = default;
};

/// What can be told about the text that is selected where the user works.
struct SelectedText
{
    enum class Finding {
        /// `text` is selected.
        Selected,
        /// Nothing is selected that may be read. No other way of asking should call this in doubt. A
        /// password field counts as nothing selected.
        Nothing,
        /// It cannot be told. The application may be asked to copy: a password field copies nothing.
        Unknown,
    };

    Finding finding = Finding::Unknown;
    /// Not trimmed. A text of more than `kMaximumTextBytes` may come cut anywhere beyond that size; the
    /// caller refuses it. Empty unless the finding is `Selected`.
    QString text = {};
    /// Whether the application has said, since the user last pressed a key or a button, that something is
    /// selected in it. What it offers with that may be a password, so it is not `text`.
    bool isClaimed = false;
    /// Whether the application left a question without an answer.
    bool isSilent = false;
};

/// What the user lets Vesk read of other applications, and the reading itself.
class Accessibility : public QObject
{
    Q_OBJECT

public:
    enum class ElementAttribute {
        /// Of the system-wide element or an application: what has the keyboard. The application's own
        /// element if the application offers no elements at all; nullopt if it could not be found out.
        FocusedElement,
        Parent,
        /// Of an application: the web page that its active window shows, whatever has the keyboard.
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

    /// Whether the user has agreed that Vesk reads other applications. While false, nothing of
    /// another application is read: every question below gives nullopt, or `Unknown`.
    [[nodiscard]] virtual bool isProcessTrusted() const = 0;

    /// Asks the user for that agreement, in a window of the platform's, and returns at once. The
    /// answer arrives as `trustChanged`, if it comes.
    virtual void askForTrust() = 0;

    /// Title of the window that has the keyboard in the application with this process identifier.
    /// Synchronous, because it has to be read at the key press. None if there is no such window or
    /// it has no title.
    [[nodiscard]] virtual std::optional<QString> focusedWindowTitle(qint64 processIdentifier) const = 0;

    /// Another element that `element` refers to, within 300 ms. Nullopt if it has none, does not answer, or
    /// is gone.
    virtual QCoro::Task<std::optional<AccessibleElement>> copyElement(AccessibleElement element,
                                                                      ElementAttribute attribute) = 0;

    /// A string of the element, not trimmed, within 300 ms. Nullopt if the element has no such string,
    /// does not answer, or is gone.
    virtual QCoro::Task<std::optional<QString>> copyString(AccessibleElement element,
                                                           StringAttribute attribute) = 0;

    /// What is selected in the window that has the keyboard when this is called. Never the content of a
    /// password field, nor content that its owner declares secret. Takes 1.2 s at most, except for the
    /// transfer of a long text, which goes on while it makes progress.
    virtual QCoro::Task<SelectedText> selectedText() = 0;

    /// The element that stands for the whole desktop.
    [[nodiscard]] static AccessibleElement systemWideElement();
    /// The element that stands for one application.
    [[nodiscard]] static AccessibleElement applicationElement(qint64 processIdentifier);

Q_SIGNALS:
    /// The user has given or withdrawn the agreement; not fired for an answer that changes nothing.
    void trustChanged();
};

} // namespace vesk
