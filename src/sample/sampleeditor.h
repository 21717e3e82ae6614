// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace vesk::sampleeditor {

/// A window with a note in the editor that contains an example of every style.
[[nodiscard]] std::unique_ptr<QQuickWindow> show(QQmlEngine &engine);

} // namespace vesk::sampleeditor
