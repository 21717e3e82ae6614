// SPDX-License-Identifier: MIT
#include "accessibleapplication.h"

#include "accessiblereference.h"

#include <QDBusMetaType>
#include <QDBusVariant>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kFolder = QStringLiteral("/org/a11y/atspi/accessible");
constexpr QChar kEmbedded = QChar::ObjectReplacementCharacter;

using StringMap = QMap<QString, QString>;

/// The criteria of a search.
struct Wanted
{
    bool isPage = false;
    bool isText = false;
};

Wanted wantedBy(const QDBusArgument &rule)
{
    QList<int> numbers;
    QList<int> roles;
    StringMap attributes;
    QStringList interfaces;
    int how = 0;
    rule.beginStructure();
    rule >> numbers >> how >> attributes >> how >> roles >> how >> interfaces;
    bool isReversed = false;
    rule >> isReversed;
    rule.endStructure();
    return {.isPage = !roles.isEmpty(), .isText = interfaces.contains("Text"_L1)};
}

} // namespace

AccessibleApplication::AccessibleApplication(const QString &busAddress, const QHash<QString, Object> &objects)
    : m_name(u"test-application-%1"_s.arg(reinterpret_cast<quintptr>(this)))
    , m_connection(QDBusConnection::connectToBus(busAddress, m_name))
    , m_objects(objects)
{
    qDBusRegisterMetaType<AccessibleReference>();
    qDBusRegisterMetaType<QList<AccessibleReference>>();
    qDBusRegisterMetaType<QList<uint>>();
    qDBusRegisterMetaType<StringMap>();
    m_connection.registerVirtualObject(u"/org/a11y/atspi"_s, this, QDBusConnection::SubPath);
}

AccessibleApplication::~AccessibleApplication()
{
    QDBusConnection::disconnectFromBus(m_name);
}

QString AccessibleApplication::path(const QString &name)
{
    return kFolder + u'/' + name;
}

void AccessibleApplication::announceFocus(const QString &name, bool isFocused)
{
    QDBusMessage event =
        QDBusMessage::createSignal(path(name), u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s);
    event << u"focused"_s << int{isFocused} << 0 << QVariant::fromValue(QDBusVariant(0));
    m_connection.send(event);
}

bool AccessibleApplication::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    ++m_calls;
    if (m_manner.isSilent || message.path().section(u'/', -1) == m_manner.silentObject) {
        message.setDelayedReply(true);
        return true;
    }
    const QVariantList arguments = answer(message);
    // Unknown requests are answered with an error.
    connection.send(arguments.isEmpty() ? message.createErrorReply(QDBusError::UnknownMethod, u"Unknown"_s)
                                        : message.createReply(arguments));
    return true;
}

QVariantList AccessibleApplication::answer(const QDBusMessage &message)
{
    const QString name = message.path().section(u'/', -1);
    const QString member = message.member();
    const QVariantList asked = message.arguments();
    if (!m_objects.contains(name))
        return {};
    const Object &object = m_objects[name];
    if (member == "GetAttributes"_L1) {
        m_manner.isAsleep = false;
        return {QVariant::fromValue(StringMap(object.attributes))};
    }
    if (member == "GetChildren"_L1)
        return {references(m_manner.isAsleep ? QStringList() : object.children)};
    if (member == "GetRoleName"_L1)
        return {object.role};
    if (member == "GetInterfaces"_L1)
        return {object.isText ? QStringList(u"org.a11y.atspi.Text"_s)
                              : QStringList(u"org.a11y.atspi.Action"_s)};
    if (member == "GetState"_L1) {
        const uint low = uint{object.isActive} << 1 | uint{object.isEditable} << 7
                         | uint{object.isFocused} << 12 | uint{object.isVisible} << 30;
        return {QVariant::fromValue(QList<uint>{low, 0})};
    }
    if (member == "Get"_L1 && asked.value(1).toString() == "Parent"_L1)
        return {QVariant::fromValue(QDBusVariant(reference(parentOf(name))))};
    if (member == "GetMatches"_L1 && m_manner.hasCollection) {
        const Wanted wanted = wantedBy(asked.value(0).value<QDBusArgument>());
        return {references(wanted.isPage ? pagesBelow(name) : focusedBelow(name, wanted.isText))};
    }
    if (member == "GetObject"_L1)
        return {reference(name)};
    if (!object.isText)
        return {};
    if (member == "Get"_L1 && asked.value(1).toString() == "CharacterCount"_L1)
        return {QVariant::fromValue(QDBusVariant(static_cast<int>(object.text.toUcs4().size())))};
    if (member == "GetNSelections"_L1)
        return {object.hasUnknownSelection ? -1 : static_cast<int>(object.selections.size())};
    if (member == "GetSelection"_L1) {
        const auto [start, end] = object.selections.value(asked.value(0).toInt());
        return {start, end};
    }
    if (member == "GetText"_L1) {
        // Offsets are in characters.
        const QList<uint> characters = object.text.toUcs4();
        const qsizetype start = asked.value(0).toInt();
        const qsizetype end = asked.value(1).toInt() < 0 ? characters.size() : asked.value(1).toInt();
        const QList<uint> part = characters.mid(start, end - start);
        return {QString::fromUcs4(reinterpret_cast<const char32_t *>(part.constData()), part.size())};
    }
    if (member == "GetCharacterAtOffset"_L1)
        return {static_cast<int>(object.text.toUcs4().value(asked.value(0).toInt()))};
    if (m_manner.hasLinks && member == "GetLinkIndex"_L1)
        return {static_cast<int>(object.children.indexOf(embeddedAt(object, asked.value(0).toInt())))};
    if (m_manner.hasLinks && member == "GetLink"_L1)
        return {reference(object.children.value(asked.value(0).toInt()))};
    return {};
}

QVariant AccessibleApplication::reference(const QString &name) const
{
    if (name.isEmpty())
        return QVariant::fromValue(
            AccessibleReference{.service = QString(), .path = QDBusObjectPath(u"/org/a11y/atspi/null"_s)});
    return QVariant::fromValue(
        AccessibleReference{.service = service(), .path = QDBusObjectPath(path(name))});
}

QVariant AccessibleApplication::references(const QStringList &names) const
{
    QList<AccessibleReference> list;
    for (const QString &name : names)
        list.append({.service = service(), .path = QDBusObjectPath(path(name))});
    return QVariant::fromValue(list);
}

QString AccessibleApplication::parentOf(const QString &name) const
{
    for (auto object = m_objects.cbegin(); object != m_objects.cend(); ++object) {
        if (object->children.contains(name))
            return object.key();
    }
    return {};
}

QStringList AccessibleApplication::focusedBelow(const QString &name, bool isTextWanted) const
{
    QStringList found;
    for (const QString &child : m_objects.value(name).children) {
        const Object object = m_objects.value(child);
        if (object.isFocused && (object.isText || !isTextWanted))
            found.append(child);
        found += focusedBelow(child, isTextWanted);
    }
    return found;
}

QStringList AccessibleApplication::pagesBelow(const QString &name) const
{
    QStringList found;
    for (const QString &child : m_objects.value(name).children) {
        const Object object = m_objects.value(child);
        if (object.role == "document web"_L1 && object.isVisible)
            found.append(child);
        found += pagesBelow(child);
    }
    return found;
}

QString AccessibleApplication::embeddedAt(const Object &object, int place) const
{
    const QList<uint> characters = object.text.toUcs4();
    return object.children.value(characters.first(place).count(kEmbedded.unicode()));
}

} // namespace vesk
