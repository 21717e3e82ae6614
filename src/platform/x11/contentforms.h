// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

/// Decides which forms of a content must be saved. Owners offer one picture in ten formats, which they
/// convert on request, and converting a large picture takes long. Nothing is lost if the format is saved from
/// which the others can be made.
namespace vesk::contentforms {

/// Returns whether a target stands for content. Some are commands: converting DELETE deletes the selection.
[[nodiscard]] bool isContent(QByteArrayView target);

/// Returns the offered form from which readers can make `target` without loss; empty if `target` itself must
/// be saved.
[[nodiscard]] QByteArray sourceOf(const QByteArray &target, const QList<QByteArray> &offered);

} // namespace vesk::contentforms
