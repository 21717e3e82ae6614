// SPDX-License-Identifier: MIT
#pragma once

#include "editor/editedtext.h"
#include "editor/edititem.h"
#include "editor/splice.h"

#include <QObject>

namespace vesk {

/// The text of a text field. Follows the toolkit's item.
class FieldText final : public QObject, public EditedText
{
    Q_OBJECT

public:
    /// The item must outlive this object.
    explicit FieldText(const EditItem &edit);

    [[nodiscard]] const QString &text() const override { return m_text; }
    void replace(qsizetype position, qsizetype length, const QString &text) override;

Q_SIGNALS:
    /// The user, or `replace`, has changed the text.
    void changed(const vesk::Splice &change);
    /// The program has set a different text.
    void loaded();

private Q_SLOTS:
    void onEdited();
    void onTextChanged();

private:
    [[nodiscard]] QString shown() const;
    /// Takes over the displayed text. Returns how it differs from the previous one.
    Splice follow();

    EditItem m_edit;
    QString m_text;
    bool m_isReplacing = false;
};

} // namespace vesk
