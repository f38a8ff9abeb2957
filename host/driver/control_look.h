// Controls as a user sees them, whichever platform shows them: which one a name means, what each is
// called, what is wrong with where they stand. Texts are UTF-8.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/driver/driver.h"

namespace lx::host {

enum class Kind {
    label,
    icon,
    groupBox,
    pushButton,
    checkBox,
    radioButton,
    edit,
    listBox,
    comboBox,
    listView,
    tabControl,
    dialog,  // a dialog or one of its pages
    picture  // anything else
};
std::string kindName(Kind kind);

// What a driver's platform tells of one control when it is asked; an answer may cost a message.
class ControlLook {
public:
    ControlLook() = default;
    ControlLook(const ControlLook&) = delete;
    ControlLook& operator=(const ControlLook&) = delete;
    virtual ~ControlLook() = default;

    virtual int id() const = 0;
    virtual Kind kind() const = 0;
    virtual bool shown() const = 0;
    virtual bool enabled() const = 0;
    virtual bool checked() const = 0;
    virtual bool focused() const = 0;
    // With the "&" of a mnemonic.
    virtual std::string text() const = 0;
    // The same of the label right before it in Tab order; "" when something else stands there.
    virtual std::string textBefore() const = 0;
    virtual std::string tooltip() const = 0;
};
// In Tab order, those of hidden pages too.
using ControlLooks = std::vector<std::unique_ptr<ControlLook>>;

// Place of the control by the rules of ControlName; that behind the last when there is none.
std::size_t findNamed(const ControlLooks& controls, ControlName name);
// "#id" and what it is called, such as "#1 OK".
std::string describeControl(const ControlLook& control);
// The dialog's title, then one control a line, for messages.
std::string dumpControls(const std::string& title, const ControlLooks& controls);

// Where a control stands that is shown, in pixels of whatever all areas are told in.
struct ControlPlace {
    std::string name;
    Kind kind = Kind::label;
    ScreenArea area;
    ScreenArea room;  // inside of the page, dialog or picture that it stands in
    std::string cut;  // its text, when that needs more than the area
    int host = -1;    // place of the picture that it stands in as a guest
    bool low = false;
};
// Pixels that a control of the kind keeps beside its text.
int besideText(Kind kind);
// Controls that overlap, stick out or cut their texts; one a line.
std::vector<std::string> findLayoutFaults(const std::vector<ControlPlace>& shown);

}  // namespace lx::host
