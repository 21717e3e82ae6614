// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspiselection.h"

#include "platform/accessibility.h"
#include "platform/freedesktop/atspitext.h"

#include <QDBusVariant>
#include <QSet>

#include <vector>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMaximumDepth = 40;
/// More paragraphs than a window shows at once.
constexpr qsizetype kMaximumParagraphs = 500;

bool isParagraph(const QString &role)
{
    static const QSet<QString> roles{u"paragraph"_s, u"heading"_s, u"list item"_s, u"block quote"_s,
                                     u"caption"_s};
    return roles.contains(role);
}

/// The page that contains an object; null if none does.
QCoro::Task<AtSpiReference> pageAround(AtSpiQuestion question, AtSpiReference object)
{
    std::optional<AtSpiReference> ancestor = object;
    for (int depth = 0; ancestor && depth < kMaximumDepth; ++depth) {
        const std::optional<QString> role = co_await question.roleName(*ancestor);
        if (role == Accessibility::kWebAreaRole)
            co_return *ancestor;
        ancestor = co_await question.parent(*ancestor);
    }
    co_return AtSpiReference();
}

/// Whether the selection may continue beyond the visible paragraphs, since Writer only exposes those on the
/// screen. `selected` has the ranges of each paragraph.
QCoro::Task<bool> goesOutOfSight(AtSpiQuestion question, AtSpiReference last,
                                 QList<QList<AtSpiRange>> selected)
{
    // A single paragraph is not a scrolled document.
    if (selected.size() < 2)
        co_return false;
    if (!selected.first().isEmpty() && selected.first().first().start == 0)
        co_return true;
    if (selected.last().isEmpty())
        co_return false;
    const std::optional<QVariantList> reply =
        co_await question.property(last, u"org.a11y.atspi.Text"_s, u"CharacterCount"_s);
    const QVariant count = reply ? reply->value(0).value<QDBusVariant>().variant() : QVariant();
    co_return !count.isValid() || selected.last().last().end >= count.toInt();
}

/// The selected text in the paragraphs of a document, one line each.
QCoro::Task<std::optional<AtSpiSelection>> readParagraphs(AtSpiQuestion question,
                                                          QList<AtSpiReference> paragraphs)
{
    if (paragraphs.size() > kMaximumParagraphs)
        co_return std::nullopt;
    std::vector<QCoro::Task<std::optional<QList<AtSpiRange>>>> pending;
    for (const AtSpiReference &paragraph : paragraphs)
        pending.push_back(readAtSpiRanges(question, paragraph));
    QStringList lines;
    // A paragraph without a selection is part of the selection if more of it follows: an empty line, or a
    // picture or table, whose text would be missing.
    QStringList between;
    bool isHole = false;
    QList<QList<AtSpiRange>> selected;
    for (size_t index = 0; index < pending.size(); ++index) {
        const std::optional<QList<AtSpiRange>> ranges = co_await pending[index];
        selected.append(ranges.value_or(QList<AtSpiRange>()));
        isHole = isHole || !ranges;
        if (!ranges || ranges->isEmpty()) {
            between.append(QString());
            continue;
        }
        const std::optional<QString> text =
            co_await readAtSpiText(question, paragraphs.at(static_cast<qsizetype>(index)), *ranges);
        if (!text || (isHole && !lines.isEmpty()))
            co_return std::nullopt;
        if (!lines.isEmpty())
            lines += between;
        between.clear();
        isHole = false;
        lines.append(*text);
    }
    const bool isCut = co_await goesOutOfSight(question, paragraphs.last(), selected);
    if (question.isOver())
        co_return std::nullopt;
    co_return AtSpiSelection{.text = lines.join(u'\n'), .isAssembled = true, .isPart = isCut};
}

QCoro::Task<std::optional<AtSpiSelection>> readPage(AtSpiQuestion question, AtSpiReference page)
{
    const std::optional<QList<AtSpiRange>> ranges = co_await readAtSpiRanges(question, page);
    // Browsers report that nothing is selected in a page although all of it is.
    if (!ranges || ranges->isEmpty())
        co_return std::nullopt;
    const std::optional<QString> text = co_await readAtSpiText(question, page, *ranges);
    if (!text)
        co_return std::nullopt;
    co_return AtSpiSelection{.text = *text, .isAssembled = true};
}

QCoro::Task<std::optional<AtSpiSelection>> readParagraphsAround(AtSpiQuestion question, AtSpiReference object)
{
    const std::optional<AtSpiReference> parent = co_await question.parent(object);
    if (!parent)
        co_return std::nullopt;
    const std::optional<QList<AtSpiReference>> paragraphs = co_await question.children(*parent);
    if (!paragraphs || !paragraphs->contains(object))
        co_return std::nullopt;
    co_return co_await readParagraphs(question, *paragraphs);
}

} // namespace

QCoro::Task<std::optional<AtSpiSelection>> readAtSpiSelection(AtSpiQuestion question, AtSpiReference object)
{
    const QCoro::Task<std::optional<AtSpiStates>> askStates = question.states(object);
    const QCoro::Task<std::optional<QString>> askRole = question.roleName(object);
    const std::optional<QList<AtSpiRange>> ranges = co_await readAtSpiRanges(question, object);
    const std::optional<AtSpiStates> states = co_await askStates;
    const std::optional<QString> role = co_await askRole;
    if (!states || !role)
        co_return std::nullopt;
    // A focused link knows its share of the page's selection, if any. A field has a separate selection.
    if (!states->test(atspistate::kEditable) && role != "terminal"_L1) {
        const AtSpiReference page = co_await pageAround(question, object);
        if (!page.isNull())
            co_return co_await readPage(question, page);
    }
    if (!ranges || question.isOver())
        co_return std::nullopt;
    // Writer's paragraphs are siblings, and only one of them has the focus.
    if (isParagraph(*role))
        co_return co_await readParagraphsAround(question, object);
    const std::optional<QString> text = co_await readAtSpiText(question, object, *ranges);
    if (!text)
        co_return std::nullopt;
    co_return AtSpiSelection{.text = *text, .isAssembled = false};
}

} // namespace vesk
