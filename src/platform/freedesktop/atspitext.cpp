// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspitext.h"

#include "platform/accessibility.h"
#include "platform/freedesktop/atspitextjoin.h"

#include <QSet>

#include <algorithm>
#include <memory>
#include <vector>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kText = QStringLiteral("org.a11y.atspi.Text");
const QString kHypertext = QStringLiteral("org.a11y.atspi.Hypertext");

/// Stands in a text for an embedded object.
constexpr QChar kEmbedded = QChar::ObjectReplacementCharacter;
constexpr int kMaximumDepth = 30;
/// How many embedded objects are read at once.
constexpr qsizetype kPipelined = 16;

/// The state of one reading, shared by everything that it descends into.
struct Reading
{
    AtSpiQuestion question;
    /// How many more objects it may read.
    int objects = 2000;
    qsizetype bytes = kMaximumReadBytes;
};

using Shared = std::shared_ptr<Reading>;
using Piece = AtSpiTextJoin::Piece;
using References = QList<AtSpiReference>;

/// How much of an embedded object is selected.
enum class Coverage {
    Whole,
    /// The selection may begin or end inside the object.
    Partial,
};

/// Roles whose objects have a selection of their own, or none: a page's selection does not extend into them.
bool isApart(const QString &role)
{
    static const QSet<QString> roles{u"password text"_s,  u"entry"_s,         u"spin button"_s,
                                     u"combo box"_s,      u"list box"_s,      Accessibility::kWebAreaRole,
                                     u"document frame"_s, u"internal frame"_s};
    return roles.contains(role);
}

/// Offsets are in characters.
qsizetype charactersIn(QStringView text)
{
    return text.size() - std::ranges::count_if(text, [](QChar unit) { return unit.isLowSurrogate(); });
}

QCoro::Task<std::optional<QString>> readPlain(AtSpiQuestion question, AtSpiReference object, AtSpiRange range)
{
    QVariantList arguments;
    arguments.append(range.start);
    arguments.append(range.end);
    const std::optional<QVariantList> reply = co_await question.call(object, kText, u"GetText"_s, arguments);
    if (!reply)
        co_return std::nullopt;
    QString text = reply->value(0).toString();
    // QtDBus takes a leading U+FEFF for a byte order mark and drops it.
    if (charactersIn(text) == range.end - range.start - 1) {
        const QVariantList first(1, range.start);
        const std::optional<QVariantList> character =
            co_await question.call(object, kText, u"GetCharacterAtOffset"_s, first);
        if (character && character->value(0).toUInt() == QChar::ByteOrderMark)
            text.prepend(QChar::ByteOrderMark);
    }
    co_return std::move(text);
}

/// The object that is embedded in the text of `object` at this offset, according to its links; null if it has
/// none there.
QCoro::Task<AtSpiReference> linkedAt(AtSpiQuestion question, AtSpiReference object, int place)
{
    const QVariantList at(1, place);
    const QVariantList first(1, 0);
    const std::optional<QVariantList> index =
        co_await question.call(object, kHypertext, u"GetLinkIndex"_s, at);
    if (!index || index->value(0, -1).toInt() < 0)
        co_return AtSpiReference();
    const std::optional<QVariantList> link = co_await question.call(object, kHypertext, u"GetLink"_s, *index);
    const AtSpiReference anchor = AtSpiReference::read(link ? link->value(0) : QVariant());
    if (anchor.isNull())
        co_return AtSpiReference();
    const std::optional<QVariantList> shown =
        co_await question.call(anchor, u"org.a11y.atspi.Hyperlink"_s, u"GetObject"_s, first);
    co_return AtSpiReference::read(shown ? shown->value(0) : QVariant());
}

/// The objects embedded in a text from `start` on, taken from its children in order; nullopt if there are too
/// few.
QCoro::Task<std::optional<References>> childrenFrom(AtSpiQuestion question, AtSpiReference object, int start)
{
    const std::optional<References> children = co_await question.children(object);
    const AtSpiRange before{.start = 0, .end = start};
    const AtSpiRange all{.start = 0, .end = -1};
    const std::optional<QString> skipped = co_await readPlain(question, object, before);
    const std::optional<QString> whole = co_await readPlain(question, object, all);
    if (!children || !skipped || !whole || whole->count(kEmbedded) != children->size())
        co_return std::nullopt;
    co_return children->sliced(std::min(skipped->count(kEmbedded), children->size()));
}

/// The objects that the placeholders in `text`, which starts at `start` in `object`, stand for; nullopt if
/// not all can be determined.
QCoro::Task<std::optional<References>> embeddedIn(Shared reading, AtSpiReference object, int start,
                                                  QString text)
{
    std::vector<QCoro::Task<AtSpiReference>> pending;
    if (text.count(kEmbedded) > reading->objects)
        co_return std::nullopt;
    int place = start;
    for (const QChar unit : text) {
        if (unit == kEmbedded)
            pending.push_back(linkedAt(reading->question, object, place));
        place += unit.isLowSurrogate() ? 0 : 1;
    }
    References embedded;
    for (QCoro::Task<AtSpiReference> &linked : pending) {
        const AtSpiReference reference = co_await linked;
        if (!reference.isNull())
            embedded.append(reference);
    }
    const auto expected = static_cast<qsizetype>(pending.size());
    if (embedded.size() == expected)
        co_return embedded;
    const std::optional<References> children = co_await childrenFrom(reading->question, object, start);
    if (!children || children->size() < expected)
        co_return std::nullopt;
    co_return children->first(expected);
}

QCoro::Task<std::optional<Piece>> readObject(Shared reading, AtSpiReference object, Coverage coverage,
                                             int depth);

/// The pieces of several objects in sequence.
QCoro::Task<std::optional<QList<Piece>>> readObjects(Shared reading, References objects,
                                                     QList<Coverage> coverages, int depth)
{
    QList<Piece> pieces;
    while (pieces.size() < objects.size()) {
        std::vector<QCoro::Task<std::optional<Piece>>> pending;
        const qsizetype end = std::min(pieces.size() + kPipelined, objects.size());
        for (qsizetype index = pieces.size(); index < end; ++index)
            pending.push_back(readObject(reading, objects.at(index), coverages.at(index), depth));
        bool isWhole = true;
        for (QCoro::Task<std::optional<Piece>> &awaited : pending) {
            const std::optional<Piece> piece = co_await awaited;
            isWhole = isWhole && piece;
            if (isWhole)
                pieces.append(*piece);
        }
        if (!isWhole)
            co_return std::nullopt;
    }
    co_return pieces;
}

QCoro::Task<std::optional<QString>> readRange(Shared reading, AtSpiReference object, AtSpiRange range,
                                              Coverage coverage, int depth)
{
    const std::optional<QString> plain = co_await readPlain(reading->question, object, range);
    if (!plain)
        co_return std::nullopt;
    reading->bytes -= plain->size();
    const qsizetype count = plain->count(kEmbedded);
    if (count == 0)
        co_return plain;
    if (reading->bytes < 0 || depth == kMaximumDepth)
        co_return std::nullopt;
    const std::optional<References> embedded = co_await embeddedIn(reading, object, range.start, *plain);
    if (!embedded)
        co_return std::nullopt;
    // The selection can cover an object partially only at its ends.
    QList<Coverage> coverages(count, Coverage::Whole);
    if (plain->front() == kEmbedded)
        coverages.first() = coverage;
    if (plain->back() == kEmbedded)
        coverages.last() = coverage;
    const std::optional<QList<Piece>> pieces = co_await readObjects(reading, *embedded, coverages, depth + 1);
    if (!pieces)
        co_return std::nullopt;
    AtSpiTextJoin join;
    const QStringList runs = plain->split(kEmbedded);
    for (qsizetype index = 0; index < runs.size(); ++index) {
        join.append({.text = runs.at(index), .layout = AtSpiTextJoin::Layout::Inline});
        if (index < count)
            join.append(pieces->at(index));
    }
    co_return join.text();
}

QCoro::Task<std::optional<QString>> readRanges(Shared reading, AtSpiReference object,
                                               QList<AtSpiRange> ranges, Coverage coverage, int depth)
{
    QStringList parts;
    for (const AtSpiRange &range : ranges) {
        const std::optional<QString> part = co_await readRange(reading, object, range, coverage, depth);
        if (!part)
            co_return std::nullopt;
        parts.append(*part);
    }
    co_return parts.join(u'\n');
}

/// An object without a text of its own, such as a table, is read as its children.
QCoro::Task<std::optional<QString>> readChildren(Shared reading, AtSpiReference object, Coverage coverage,
                                                 int depth)
{
    const std::optional<References> children = co_await reading->question.children(object);
    if (!children || depth == kMaximumDepth)
        co_return std::nullopt;
    const QList<Coverage> coverages(children->size(), coverage);
    const std::optional<QList<Piece>> pieces = co_await readObjects(reading, *children, coverages, depth + 1);
    if (!pieces)
        co_return std::nullopt;
    AtSpiTextJoin join;
    for (const Piece &piece : *pieces)
        join.append(piece);
    co_return join.text();
}

QCoro::Task<std::optional<Piece>> readObject(Shared reading, AtSpiReference object, Coverage coverage,
                                             int depth)
{
    if (--reading->objects < 0)
        co_return std::nullopt;
    const QCoro::Task<std::optional<bool>> askIsText = reading->question.isText(object);
    const std::optional<QString> role = co_await reading->question.roleName(object);
    const std::optional<bool> isText = co_await askIsText;
    if (!role || !isText)
        co_return std::nullopt;
    Piece piece{.text = QString(), .layout = AtSpiTextJoin::layoutOf(*role)};
    if (isApart(*role))
        co_return piece;
    std::optional<QString> text;
    if (!*isText) {
        text = co_await readChildren(reading, object, coverage, depth);
    } else {
        QList<AtSpiRange> ranges(1, AtSpiRange{.start = 0, .end = -1});
        if (coverage == Coverage::Partial) {
            const std::optional<QList<AtSpiRange>> selected =
                co_await readAtSpiRanges(reading->question, object);
            if (!selected)
                co_return std::nullopt;
            ranges = *selected;
        }
        text = co_await readRanges(reading, object, ranges, coverage, depth);
    }
    if (!text)
        co_return std::nullopt;
    piece.text = *text;
    co_return piece;
}

} // namespace

QCoro::Task<std::optional<QList<AtSpiRange>>> readAtSpiRanges(AtSpiQuestion question, AtSpiReference object)
{
    const std::optional<QVariantList> count = co_await question.call(object, kText, u"GetNSelections"_s);
    if (!count || count->isEmpty())
        co_return std::nullopt;
    constexpr int kMaximumRanges = 100;
    const int selections = count->first().toInt();
    // GTK 3 returns -1 for its lists: they have a text, but cannot say what is selected in it.
    if (selections < 0 || selections > kMaximumRanges)
        co_return std::nullopt;
    QList<AtSpiRange> ranges;
    for (int index = 0; index < selections; ++index) {
        const QVariantList which(1, index);
        const std::optional<QVariantList> reply =
            co_await question.call(object, kText, u"GetSelection"_s, which);
        if (!reply || reply->size() < 2)
            co_return std::nullopt;
        const auto [start, end] = std::minmax({reply->at(0).toInt(), reply->at(1).toInt()});
        if (start != end)
            ranges.append({.start = start, .end = end});
    }
    co_return ranges;
}

QCoro::Task<std::optional<QString>> readAtSpiText(AtSpiQuestion question, AtSpiReference object,
                                                  QList<AtSpiRange> ranges)
{
    const Shared reading = std::make_shared<Reading>(Reading{.question = question});
    return readRanges(reading, object, ranges, Coverage::Partial, 0);
}

} // namespace vesk
