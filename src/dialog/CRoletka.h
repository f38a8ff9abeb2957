// The in-place drop-down of the design dialog: stands over a number of a preview while the user
// types another one, and offers the values used before.
#pragma once

#include "design/design_services.h"
#include "design/value_commit.h"
#include "settings/value_history.h"

namespace lx {

// F2 in a preview begins to edit its next number, Shift+F2 the one before; in the box itself it
// commits and goes on, by the key handler of the picture.
class CRoletka {
public:
    // Takes the box's events. Both must outlive it.
    CRoletka(ComboBox& box, DesignServices& services);

    // Commits a pending edit and stands the box over that point of the picture, filled with the
    // remembered values, its text selected, with the focus.
    void open(const EditRequest& request, Picture& picture, Point at);
    // Also during the event that has closed the box by taking its focus.
    bool visible() const { return m_box.visible() || m_left; }
    // Takes the edit away, hides the box and puts the typed value into the design. False when the
    // value was refused, also when the message about it is still to come. True as well when
    // there was nothing to commit.
    bool commit() { return commit(Message::now); }
    // Takes the edit away and hides the box; the design keeps its value.
    void cancel();
    // What was edited last; its record may be gone.
    const EditTarget& lastTarget() const { return m_lastTarget; }
    // Leaves the picture before its window goes; the edit is over.
    void leave();

private:
    // A message box may not come up while the focus is on its way.
    enum class Message { now, posted };

    void leaveFocus();
    bool commit(Message message);
    void fill(const Text& shown);
    void place(Picture& picture, Point at);
    void hide();
    KeyAnswer key(const KeyEvent& event);
    bool removeSelected();
    void refuse(const CommitAnswer& answer, Message message);
    // Shows a refusal that has not been told yet. True when there was one.
    bool tellRefusal();

    ComboBox& m_box;
    DesignServices& m_services;
    ValueEdit m_edit;
    EditTarget m_lastTarget;
    Text m_historySection;
    std::string_view m_untold;     // text of a refusal whose message is posted
    Picture* m_picture = nullptr;  // that the box stands in
    bool m_left = false;           // the event that took the focus is still being handled
};

}  // namespace lx
