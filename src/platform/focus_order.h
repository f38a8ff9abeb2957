// Where Tab and the arrows lead in a dialog, and what Enter and Esc press there: rules over plain
// facts of its controls, which every platform asks.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "platform/dialog.h"

namespace lx {

struct ControlFacts {
    ControlKind kind = ControlKind::label;
    int id = 0;
    unsigned style = 0;    // as in the template; hidden and disabled there tell the start only
    int page = 0;          // 0 = a control of the dialog itself; each page has another number
    bool shown = true;     // with its page and what it stands in, even before the dialog is shown
    bool usable = true;    // enabled, together with what it stands in
    bool checked = false;  // radio buttons
};

// Whether the keyboard can reach such a control at all, and whether Tab stops there.
bool takesFocus(ControlKind kind, unsigned style);
bool takesTab(ControlKind kind, unsigned style);

// What the user's key asks of a dialog: Control is a place in its order, or the control itself.
enum class FocusAct {
    none,    // nothing: the key is the control's
    used,    // nothing, and nobody else is to see the key
    focus,   // the focus goes to the control
    choose,  // the same, and the radio button is chosen
    press,   // the button is pressed
    cancel   // the dialog ends as cancelled
};
template <class Control>
struct FocusStep {
    FocusAct act = FocusAct::none;
    Control control{};
};

// The controls of a dialog and its pages in Tab order, named by their places in it.
class FocusOrder {
public:
    using Step = FocusStep<std::size_t>;
    static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

    explicit FocusOrder(std::vector<ControlFacts> controls) : m_controls(std::move(controls)) {}

    // Whether it could have the focus now.
    bool focusable(std::size_t control) const;
    // A stop of the Tab key now. One radio button of a group is: the checked one, else the first
    // that could have the focus.
    bool isStop(std::size_t control) const;
    // The stop behind (or before) a control, going round; a radio group is left as one. From
    // nowhere: the first (or last). nowhere when there is no other.
    std::size_t nextStop(std::size_t from, bool backward) const;
    // Radio buttons that follow one another without another kind between.
    std::vector<std::size_t> radioGroup(std::size_t member) const;
    // The focused button, else the template's; whether or not it can be pressed now.
    std::size_t defaultButton(std::size_t focused) const;

    Step tab(std::size_t focused, bool backward) const;
    Step enter(std::size_t focused) const;
    // Esc or the window's cross: the dialog's own Cancel button, when there is one.
    Step escape() const;
    // A key that no handler has used and the focused control does not need itself.
    Step key(const KeyEvent& event, std::size_t focused) const;

private:
    Step arrow(std::size_t radio, bool backward) const;

    std::vector<ControlFacts> m_controls;
};

// A button that a key or a click presses; one without a handler ends its dialog, if it is id::ok or
// id::cancel.
void pressButton(Dialog& dialog, const Button& button);

// Adds the controls of a dialog and its pages in Tab order: pages come behind the tab control, else
// behind everything. D has controls() and pages().
template <class C, class D>
void addInTabOrder(const D& dialog, std::vector<C*>& order) {
    bool pagesAdded = false;
    const auto addPages = [&] {
        for (const D* page : dialog.pages()) addInTabOrder(*page, order);
        pagesAdded = true;
    };
    for (const auto& control : dialog.controls()) {
        order.push_back(control.get());
        if (!pagesAdded && control->kind() == ControlKind::tabControl) addPages();
    }
    if (!pagesAdded) addPages();
}

// The same rules over a platform's own controls; C has dialog() and facts(), which leaves the page
// to be told here. To be made anew for each question: controls change.
template <class C>
class FocusOrderOf {
public:
    template <class D>
    FocusOrderOf(const D& dialog, std::vector<C*> controls)
        : m_controls(std::move(controls)), m_rules(factsOf(dialog, m_controls)) {}

    C* nextStop(const C* from, bool backward) const {
        return at(m_rules.nextStop(placeOf(from), backward));
    }
    std::vector<C*> radioGroup(const C& member) const {
        std::vector<C*> group;
        for (const std::size_t place : m_rules.radioGroup(placeOf(&member))) {
            group.push_back(at(place));
        }
        return group;
    }
    C* defaultButton(const C* focused) const { return at(m_rules.defaultButton(placeOf(focused))); }
    FocusStep<C*> tab(const C* focused, bool backward) const {
        return named(m_rules.tab(placeOf(focused), backward));
    }
    FocusStep<C*> escape() const { return named(m_rules.escape()); }
    FocusStep<C*> key(const KeyEvent& event, const C* focused) const {
        return named(m_rules.key(event, placeOf(focused)));
    }

private:
    template <class D>
    static std::vector<ControlFacts> factsOf(const D& dialog, const std::vector<C*>& controls) {
        std::vector<ControlFacts> facts;
        const D* before = &dialog;
        int pages = 0;
        for (const C* control : controls) {
            const D* const of = &control->dialog();
            if (of != before) ++pages;
            before = of;
            facts.push_back(control->facts());
            facts.back().page = of == &dialog ? 0 : pages;
        }
        return facts;
    }
    std::size_t placeOf(const C* control) const {
        const auto found = std::find(m_controls.begin(), m_controls.end(), control);
        return found == m_controls.end() ? FocusOrder::nowhere
                                         : static_cast<std::size_t>(found - m_controls.begin());
    }
    C* at(std::size_t place) const {
        return place == FocusOrder::nowhere ? nullptr : m_controls[place];
    }
    FocusStep<C*> named(const FocusOrder::Step& step) const { return {step.act, at(step.control)}; }

    std::vector<C*> m_controls;
    FocusOrder m_rules;
};

}  // namespace lx
