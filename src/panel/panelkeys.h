// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace vesk {

class Application;
class PanelModel;
enum class PanelAction;

/// Does what the keys of the panel mean. What they mean stands in the key map. Owned by the panel's
/// model.
class PanelKeys final
{
public:
    /// Both have to outlive this.
    PanelKeys(PanelModel &panel, Application &application);

    /// True if the key press was for the panel; else it goes on to whatever has the keyboard.
    bool handle(const QKeyEvent &event);

private:
    bool perform(PanelAction action, int key);
    bool openFound();

    PanelModel &m_panel;
    Application &m_application;
};

} // namespace vesk
