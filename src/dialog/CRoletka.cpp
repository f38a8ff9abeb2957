#include "dialog/CRoletka.h"

#include <algorithm>
#include <utility>

namespace lx {

namespace {

// Nearest place within the picture; a box larger than the picture begins at its edge.
int within(int wanted, int size, int available) {
    return std::max(0, std::min(wanted, available - size));
}

}  // namespace

CRoletka::CRoletka(ComboBox& box, DesignServices& services) : m_box(box), m_services(services) {
    m_box.onKey = [this](const KeyEvent& event) { return key(event); };
    m_box.onBlur = [this] { leaveFocus(); };
}

void CRoletka::open(const EditRequest& request, Picture& picture, Point at) {
    commit(Message::posted);
    m_historySection = request.historySection;
    m_picture = &picture;
    m_box.moveInto(&picture);
    fill(request.edit.shown);
    place(picture, at);
    m_edit = request.edit;
    m_lastTarget = m_edit.target;
    m_box.show(true);
    m_box.focus();
    m_box.selectAllText();
}

void CRoletka::fill(const Text& shown) {
    ValueHistory history = m_services.settings().history(m_historySection);
    m_box.clear();
    int selected = -1;
    for (const Text& value : history.shown()) {
        const int index = m_box.add(value);
        if (selected < 0 && value == shown) selected = index;
    }
    // A new value is remembered, yet nothing that the user could mean to take out of the list.
    if (selected < 0) {
        m_box.add(shown);
        history.add(shown);
    }
    m_box.select(selected);
    m_box.setText(shown);
}

void CRoletka::place(Picture& picture, Point at) {
    const Size own = m_box.area().size();
    const Size client = picture.size();
    const int left = within(at.x - own.width / 2, own.width, client.width);
    const int top = within(at.y - own.height / 2, own.height, client.height);
    m_box.setArea({left, top, left + own.width, top + own.height});
}

void CRoletka::cancel() {
    m_edit = {};
    hide();
}

void CRoletka::leave() {
    m_edit = {};
    m_box.show(false);
    m_box.moveInto(nullptr);
    m_picture = nullptr;
}

// The picture keeps the keyboard, so that its own keys work at once.
void CRoletka::hide() {
    if (m_box.focused() && m_picture != nullptr) m_picture->focus();
    m_box.show(false);
}

// Not told of a switch to another program: the user may look the value up there.
void CRoletka::leaveFocus() {
    if (m_edit.target.record != nullptr) {
        m_left = true;
        m_services.window().post([this] { m_left = false; });
    }
    commit(Message::posted);
}

// The edit is over before anything else happens: hiding, messages and rebuilt offers lead back
// here.
bool CRoletka::commit(Message message) {
    const ValueEdit edit = std::exchange(m_edit, {});
    const Text typed = m_box.text();
    if (m_box.visible()) hide();
    // A refusal by the loss of the focus has not been told when the act that took the focus begins.
    if (edit.target.record == nullptr) return message == Message::posted || !tellRefusal();
    DesignModel& model = m_services.model();
    const CommitAnswer answer = commitValue(model.edit(), edit, typed, model.values().openingWidth);
    // A value refused or kept has changed nothing. It is not laid out: the summary would take the
    // place of a description that the user has typed.
    if (!answer.message.empty()) {
        refuse(answer, message);
        return false;
    }
    if (!answer.changed) return true;
    // The offers come first: the plan that is drawn anew measures the overhang on the first layer,
    // which may be a millimetre less than the bearing that was typed.
    if (answer.precastOffer) m_services.RebuildPrecastOffer();
    if (answer.steelOffer) m_services.RebuildSteelOffer();
    m_services.Relayout();
    return true;
}

void CRoletka::refuse(const CommitAnswer& answer, Message message) {
    m_box.setText(answer.kept);
    m_untold = answer.message;
    if (message == Message::posted) {
        m_services.window().post([this] { tellRefusal(); });
    } else {
        tellRefusal();
    }
}

bool CRoletka::tellRefusal() {
    const std::string_view refusal = std::exchange(m_untold, {});
    if (refusal.empty()) return false;
    m_services.showMessage(refusal, MessageIcon::stop);
    return true;
}

KeyAnswer CRoletka::key(const KeyEvent& event) {
    if (event.key == key::f2 && !event.ctrl && !event.alt && m_picture != nullptr) {
        Picture& picture = *m_picture;
        if (commit() && picture.onKey) picture.onKey(event);
        return KeyAnswer::swallow;
    }
    if (event.ctrl || event.shift || event.alt) return KeyAnswer::pass;
    switch (event.key) {
        case key::enter:
            commit();
            return KeyAnswer::swallow;
        case key::escape:
            if (m_box.droppedDown()) return KeyAnswer::pass;
            cancel();
            return KeyAnswer::swallow;
        case key::del:
            // While the list is closed the key edits the text.
            return m_box.droppedDown() && removeSelected() ? KeyAnswer::swallow : KeyAnswer::pass;
        default:
            return KeyAnswer::pass;
    }
}

// Forgets the remembered value that is selected; typed text selects none. The edit ends with it.
bool CRoletka::removeSelected() {
    const int index = m_box.selected();
    if (m_box.count() < 2 || index < 0) return false;
    m_services.settings().history(m_historySection).remove(m_box.item(index));
    m_box.remove(index);
    m_box.select(std::max(index - 1, 0));
    cancel();
    return true;
}

}  // namespace lx
