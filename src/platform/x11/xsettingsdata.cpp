// SPDX-License-Identifier: MIT
#include "platform/x11/xsettingsdata.h"

#include <QDataStream>
#include <QIODevice>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

enum Type : quint8 {
    Integer,
    Text,
    Color,
};

constexpr int kColorSize = 8;

/// Names and texts are padded to a multiple of four bytes.
QByteArray padded(QDataStream &stream, quint32 size)
{
    const auto left = static_cast<quint64>(stream.device()->bytesAvailable());
    const quint64 whole = (quint64{size} + 3) & ~quint64{3};
    if (whole > left) {
        stream.setStatus(QDataStream::ReadPastEnd);
        return {};
    }
    QByteArray bytes(static_cast<qsizetype>(whole), Qt::Uninitialized);
    stream.readRawData(bytes.data(), static_cast<int>(whole));
    bytes.truncate(static_cast<qsizetype>(size));
    return bytes;
}

QVariant valueOf(QDataStream &stream, quint8 type)
{
    switch (type) {
    case Integer: {
        qint32 number = 0;
        stream >> number;
        return number;
    }
    case Text: {
        quint32 size = 0;
        stream >> size;
        return QString::fromUtf8(padded(stream, size));
    }
    case Color:
        // Colours are not used.
        stream.skipRawData(kColorSize);
        return {};
    default:
        // Its length is unknown, so nothing after it can be parsed.
        stream.setStatus(QDataStream::ReadCorruptData);
        return {};
    }
}

} // namespace

QHash<QString, QVariant> xsettingsFrom(const QByteArray &data)
{
    QHash<QString, QVariant> settings;
    QDataStream stream(data);
    quint8 byteOrder = 0;
    stream >> byteOrder;
    stream.setByteOrder(byteOrder == 0 ? QDataStream::LittleEndian : QDataStream::BigEndian);
    constexpr int kPadding = 3;
    stream.skipRawData(kPadding);
    quint32 serial = 0;
    quint32 count = 0;
    stream >> serial >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        quint8 type = 0;
        quint8 unused = 0;
        quint16 nameSize = 0;
        stream >> type >> unused >> nameSize;
        const QString name = QString::fromLatin1(padded(stream, nameSize));
        stream >> serial;
        const QVariant value = valueOf(stream, type);
        if (stream.status() == QDataStream::Ok)
            settings.insert(name, value);
    }
    return settings;
}

DesktopLooks looksFrom(const QHash<QString, QVariant> &settings)
{
    DesktopLooks looks;
    const QString theme = settings.value(u"Net/ThemeName"_s).toString();
    if (!theme.isEmpty()) {
        const bool isDark =
            isDarkTheme(theme) || settings.value(u"Gtk/ApplicationPreferDarkTheme"_s).toBool();
        looks.colorScheme = isDark ? Appearance::ColorScheme::Dark : Appearance::ColorScheme::Light;
        looks.increasesContrast = isHighContrastTheme(theme);
    } else if (settings.value(u"Gtk/ApplicationPreferDarkTheme"_s).toBool()) {
        looks.colorScheme = Appearance::ColorScheme::Dark;
    }
    looks.textFont = textFontFrom(settings.value(u"Gtk/FontName"_s).toString());
    // Both names are in use.
    for (const QString &name : {u"Gtk/EnableAnimations"_s, u"Net/EnableAnimations"_s}) {
        if (settings.contains(name))
            looks.reducesMotion = !settings.value(name).toBool();
    }
    if (settings.contains(u"Net/CursorBlink"_s))
        looks.cursorBlinks = settings.value(u"Net/CursorBlink"_s).toBool();
    if (settings.contains(u"Net/CursorBlinkTime"_s))
        looks.cursorBlinkTime = std::chrono::milliseconds(settings.value(u"Net/CursorBlinkTime"_s).toInt());
    return looks;
}

} // namespace vesk
