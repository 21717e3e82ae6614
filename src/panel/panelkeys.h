// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace vesk {

class Application;
class PanelModel;
enum class PanelAction;

/// Carries out the panel's keys according to the key map. Owned by the panel's model.
class PanelKeys final
{
public:
    /// Both must outlive this object.
    PanelKeys(PanelModel &panel, Application &application);

    /// Returns true if the key press was for the panel; otherwise it goes to whatever has the focus.
    bool handle(const QKeyEvent &event);

private:
    bool handlePress(const QKeyEvent &event);
    bool perform(PanelAction action, int key);
    bool openFound();

    PanelModel &m_panel;
    Application &m_application;
    /// The key whose press the panel has handled, while it is held; 0 if there is none. Whatever has the
    /// focus by now, such as a note that was opened, must not get its repeats.
    int m_spentKey = 0;
};

} // namespace vesk
