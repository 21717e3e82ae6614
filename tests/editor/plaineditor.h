// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <utility>

namespace vesk {

/// The rules of the editor's keys on a plain string, as simply as they can be said. The real editor has
/// to have the same text and selection after every key.
struct PlainEditor
{
    QString text;
    qsizetype anchor = 0;
    qsizetype caret = 0;

    friend bool operator==(const PlainEditor &, const PlainEditor &) = default;

    void insert(const QString &typed)
    {
        const qsizetype start = std::min(anchor, caret);
        text.replace(start, std::max(anchor, caret) - start, typed);
        anchor = caret = start + typed.size();
    }

    void typeSpace()
    {
        const std::pair<QString, QString> forms[] = {{QStringLiteral("-"), QStringLiteral("• ")},
                                                     {QStringLiteral("*"), QStringLiteral("• ")},
                                                     {QStringLiteral("[]"), QStringLiteral("☐ ")},
                                                     {QStringLiteral("[ ]"), QStringLiteral("☐ ")},
                                                     {QStringLiteral("[x]"), QStringLiteral("☑ ")}};
        const qsizetype start = lineStart();
        for (const auto &[typed, marker] : forms) {
            if (anchor == caret && text.mid(start, caret - start) == typed) {
                text.replace(start, typed.size(), marker);
                anchor = caret = start + marker.size();
                return;
            }
        }
        insert(QStringLiteral(" "));
    }

    void typeReturn()
    {
        const QString line = text.mid(lineStart(), lineEnd() - lineStart());
        const QString marker = line.left(2);
        if (anchor != caret || (marker != u"• " && marker != u"☐ " && marker != u"☑ ")) {
            insert(QStringLiteral("\n"));
        } else if (line == marker) {
            anchor = caret = lineStart();
            text.remove(caret, 2);
        } else {
            insert(u'\n' + (marker == u"☑ " ? QStringLiteral("☐ ") : marker));
        }
    }

    void erase(int direction)
    {
        if (anchor == caret)
            anchor = std::clamp(caret + direction, qsizetype{0}, text.size());
        insert({});
    }

    /// `wanted` is a marker with its space.
    void togglePrefix(const QString &wanted)
    {
        const qsizetype from = std::min(anchor, caret);
        const qsizetype start = lineStart(from);
        QString marker = text.mid(start, std::min<qsizetype>(2, lineEnd(from) - start));
        if (marker != u"• " && marker != u"☐ " && marker != u"☑ " && marker != u"# ")
            marker.clear();
        const bool isThere = marker == wanted || (marker == u"☑ " && wanted == u"☐ ");
        const QString made = isThere ? QString() : wanted;
        text.replace(start, marker.size(), made);
        for (qsizetype *position : {&anchor, &caret})
            *position = start + made.size() + std::max<qsizetype>(0, *position - start - marker.size());
    }

    void toggleBox(qsizetype position) { text[position] = text.at(position) == u'☐' ? u'☑' : u'☐'; }

    [[nodiscard]] static bool isBreak(QChar character)
    {
        return character == u'\n' || character == QChar(0x2028) || character == QChar(0x2029);
    }
    [[nodiscard]] qsizetype lineStart() const { return lineStart(caret); }
    [[nodiscard]] qsizetype lineStart(qsizetype position) const
    {
        while (position > 0 && !isBreak(text.at(position - 1)))
            --position;
        return position;
    }
    [[nodiscard]] qsizetype lineEnd() const { return lineEnd(caret); }
    [[nodiscard]] qsizetype lineEnd(qsizetype position) const
    {
        while (position < text.size() && !isBreak(text.at(position)))
            ++position;
        return position;
    }
};

} // namespace vesk
