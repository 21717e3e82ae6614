// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace vesk::sampleeditor {

/// A window with a note in the editor that has one of everything that is styled.
[[nodiscard]] std::unique_ptr<QQuickWindow> show(QQmlEngine &engine);

} // namespace vesk::sampleeditor
