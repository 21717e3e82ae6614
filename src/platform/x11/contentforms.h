// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

/// Which forms of a content have to be kept for the content to be kept. Owners offer one picture in ten
/// formats that they convert when they are asked, and converting a large picture takes long; nothing is
/// lost if one of them is kept that the others can be made from.
namespace vesk::contentforms {

/// Whether a target stands for content. Some are commands: converting DELETE deletes.
[[nodiscard]] bool isContent(QByteArrayView target);

/// The form from which `target` can be made without loss by whoever wants it, among the forms that are
/// offered; empty if it has to be kept itself.
[[nodiscard]] QByteArray sourceOf(const QByteArray &target, const QList<QByteArray> &offered);

} // namespace vesk::contentforms
