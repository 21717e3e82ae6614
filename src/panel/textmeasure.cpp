// SPDX-License-Identifier: MIT
#include "panel/textmeasure.h"

#include "panel/cutoff.h"

#include <QTextLayout>

namespace vesk {

namespace {

/// More text than this is never needed to fill a line; avoids laying out a very long one.
constexpr qsizetype kLongestLine = 1000;

/// The same text for a single layout, in which a line feed does not break lines.
QString forLayout(const QString &text)
{
    QString result = text;
    result.replace(u'\n', QChar::LineSeparator);
    return result;
}

} // namespace

TextMeasure::TextMeasure(QObject *parent)
    : QObject(parent)
{
    connect(this, &TextMeasure::inputChanged, this, &TextMeasure::measure);
}

void TextMeasure::componentComplete()
{
    m_isComplete = true;
    measure();
}

void TextMeasure::measure()
{
    if (!m_isComplete || m_width <= 0)
        return;
    const QString start = m_text.left((m_lineLimit + 1) * kLongestLine);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    // As in the item that shows the text.
    option.setUseDesignMetrics(true);
    QTextLayout layout(forLayout(start), m_font);
    layout.setTextOption(option);
    layout.beginLayout();
    qsizetype lastStart = 0;
    qsizetype lastEnd = 0;
    for (int count = 0; count < m_lineLimit; ++count) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(m_width);
        lastStart = line.textStart();
        lastEnd = lastStart + line.textLength();
    }
    const bool isLong = layout.createLine().isValid() || start.size() < m_text.size();
    layout.endLayout();

    m_isLong = isLong;
    m_shortText = m_text;
    if (isLong) {
        const QStringView last = QStringView(m_text).sliced(lastStart, lastEnd - lastStart);
        m_shortText = m_text.left(lastStart) + cutOff(last, m_font, m_width);
    }
    Q_EMIT measured();
}

} // namespace vesk
