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
    bool handlePress(const QKeyEvent &event);
    bool perform(PanelAction action, int key);
    bool openFound();

    PanelModel &m_panel;
    Application &m_application;
    /// The key whose press the panel has acted on, while it is held; 0 for none. What has the keyboard
    /// by now, such as the note that was opened, must not get its repeats.
    int m_spentKey = 0;
};

} // namespace vesk
