#include "platform/headless/headless_platform.h"

#include <algorithm>
#include <stdexcept>

#include "platform/headless/headless_picture.h"
#include "platform/numbers.h"

namespace lx {

namespace {

// How long timers may go on alone before a dialog counts as left by its user.
constexpr long long patience = 10LL * 60 * 1000;
// Actions that post one another for ever are a fault, not something to wait for.
constexpr int mostPosted = 100000;

MessageAnswer refusal(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::okCancel:
            return MessageAnswer::cancel;
        case MessageButtons::yesNo:
            return MessageAnswer::no;
        case MessageButtons::ok:
            break;
    }
    return MessageAnswer::ok;
}

}  // namespace

bool HeadlessMessageBox::has(MessageAnswer answer) const {
    switch (answer) {
        case MessageAnswer::ok:
            return buttons != MessageButtons::yesNo;
        case MessageAnswer::cancel:
            return buttons == MessageButtons::okCancel;
        case MessageAnswer::yes:
        case MessageAnswer::no:
            return buttons == MessageButtons::yesNo;
    }
    return false;
}

bool HeadlessPlatform::Layer::done() const {
    return dialog ? !dialog->running() : answered;
}

// Stands on top of what waits as long as it lives; the mouse leaves what was on top before.
class HeadlessPlatform::LayerScope {
public:
    LayerScope(HeadlessPlatform& platform, Layer& layer) : m_platform(platform), m_layer(layer) {
        if (HeadlessDialog* before = platform.activeDialog()) before->loseCapture();
        platform.m_layers.push_back(&layer);
    }
    ~LayerScope() { std::erase(m_platform.m_layers, &m_layer); }
    LayerScope(const LayerScope&) = delete;
    LayerScope& operator=(const LayerScope&) = delete;

private:
    HeadlessPlatform& m_platform;
    Layer& m_layer;
};

std::unique_ptr<Dialog> HeadlessPlatform::createDialog(const DialogTemplate& layout, Owner owner) {
    return std::make_unique<HeadlessDialog>(*this, layout, owner);
}

// ---- what waits

HeadlessPlatform::Layer* HeadlessPlatform::top() const {
    return m_layers.empty() || m_layers.back()->done() ? nullptr : m_layers.back();
}

HeadlessDialog* HeadlessPlatform::activeDialog() const {
    const Layer* layer = top();
    return layer ? layer->dialog : nullptr;
}

HeadlessDialog* HeadlessPlatform::topDialog() const {
    return m_dialogs.empty() ? nullptr : m_dialogs.back();
}

const HeadlessMessageBox* HeadlessPlatform::openMessageBox() const {
    const Layer* layer = top();
    return layer ? layer->box : nullptr;
}

const HeadlessPopup* HeadlessPlatform::openPopup() const {
    const Layer* layer = top();
    return layer ? layer->popup : nullptr;
}

std::string HeadlessPlatform::nameOf(const Layer& layer) {
    if (layer.dialog) return "dialog " + layer.dialog->name();
    if (layer.box) return "message " + toUtf8(layer.box->message);
    return "popup";
}

void HeadlessPlatform::cancel(Layer& layer) {
    if (layer.dialog) {
        layer.dialog->end(id::cancel);
        return;
    }
    layer.answer = layer.box ? static_cast<int>(refusal(layer.box->buttons)) : 0;
    layer.answered = true;
}

void HeadlessPlatform::cancelTop() {
    if (Layer* layer = top()) cancel(*layer);
}

void HeadlessPlatform::waitOn(Layer& layer) {
    m_lastAct = m_clock;
    for (;;) {
        settle();
        if (layer.done()) return;
        if (callCopy(onIdle)) {
            m_lastAct = m_clock;
            continue;
        }
        if (layer.done()) return;
        if (goOnToNextTimer(m_lastAct + patience)) continue;
        m_stranded.push_back(nameOf(layer));
        cancel(layer);
    }
}

int HeadlessPlatform::runDialog(HeadlessDialog& dialog) {
    // Whatever is thrown, the dialog is open no longer.
    struct Closing {
        HeadlessDialog& dialog;
        ~Closing() { dialog.end(-1); }
    };
    Layer layer{&dialog, nullptr, nullptr, 0, false};
    {
        const LayerScope scope(*this, layer);
        dialog.m_running = true;
        const Closing closing{dialog};
        m_dialogs.push_back(&dialog);
        callCopy(dialog.onInit);
        if (dialog.m_running) {
            if (!dialog.m_placed) dialog.centre();
            dialog.m_visible = true;
            if (!dialog.m_focus || !dialog.m_focus->focusable()) dialog.focusFirst();
            waitOn(layer);
        }
    }
    dialog.closeWindow();
    return dialog.m_result;
}

MessageAnswer HeadlessPlatform::messageBox(Owner owner, std::string_view message,
                                           std::string_view caption, MessageIcon icon,
                                           MessageButtons buttons) {
    HeadlessMessageBox box{Text(message), Text(caption), icon, buttons,
                           dynamic_cast<HeadlessDialog*>(owner.dialog)};
    Layer layer{nullptr, &box, nullptr, 0, false};
    const LayerScope scope(*this, layer);
    waitOn(layer);
    return static_cast<MessageAnswer>(layer.answer);
}

int HeadlessPlatform::runPopup(HeadlessPopup popup) {
    Layer layer{nullptr, nullptr, &popup, 0, false};
    const LayerScope scope(*this, layer);
    waitOn(layer);
    return layer.answer;
}

// ---- acts

void HeadlessPlatform::answerMessageBox(MessageAnswer answer) {
    Layer* layer = top();
    if (!layer || !layer->box) throw std::logic_error("no message box is open");
    if (!layer->box->has(answer)) {
        throw std::logic_error("the message box \"" + toUtf8(layer->box->message) +
                               "\" has no such button");
    }
    layer->answer = static_cast<int>(answer);
    layer->answered = true;
}

void HeadlessPlatform::closeMessageBox() {
    const HeadlessMessageBox* box = openMessageBox();
    if (box && box->buttons == MessageButtons::yesNo) {
        throw std::logic_error("the message box \"" + toUtf8(box->message) +
                               "\" asks for Yes or No");
    }
    answerMessageBox(box ? refusal(box->buttons) : MessageAnswer::ok);
}

void HeadlessPlatform::choosePopup(int command) {
    Layer* layer = top();
    if (!layer || !layer->popup) throw std::logic_error("no popup menu is open");
    if (!layer->popup->canChoose(command)) {
        throw std::logic_error("the popup menu offers no command " + formatInt(command) + " now");
    }
    layer->answer = command;
    layer->answered = true;
}

void HeadlessPlatform::closePopup() {
    if (!openPopup()) throw std::logic_error("no popup menu is open");
    cancelTop();
}

bool HeadlessPlatform::setClipboardText(std::string_view text) {
    m_clipboard = text;
    return true;
}

// ---- clock, posted actions, paints

bool HeadlessPlatform::goOnToNextTimer(long long noLaterThan) {
    HeadlessDialog* owner = nullptr;
    HeadlessDialog::Timer* next = nullptr;
    const auto consider = [&](HeadlessDialog* dialog) {
        for (auto& timer : dialog->m_timers) {
            if (next && timer.due >= next->due) continue;
            next = &timer;
            owner = dialog;
        }
    };
    for (HeadlessDialog* dialog : m_dialogs) {
        consider(dialog);
        for (HeadlessDialog* page : dialog->m_pages) consider(page);
    }
    if (!next || next->due > noLaterThan) return false;
    m_clock = std::max(m_clock, next->due);
    next->due += next->period;
    callCopy(owner->onTimer, next->id);
    settle();
    return true;
}

void HeadlessPlatform::advanceClock(int milliseconds) {
    const long long until = m_clock + milliseconds;
    while (goOnToNextTimer(until)) continue;
    m_clock = std::max(m_clock, until);
}

void HeadlessPlatform::post(HeadlessDialog& dialog, std::function<void()> action) {
    m_posted.emplace_back(&dialog, std::move(action));
}

void HeadlessPlatform::forget(const HeadlessDialog& dialog) {
    std::erase(m_dialogs, &dialog);
    std::erase_if(m_posted, [&](const auto& posted) {
        return posted.first == &dialog || &posted.first->root() == &dialog;
    });
}

bool HeadlessPlatform::runOnePosted() {
    // A dialog that something stands before is still within the event that has opened that.
    const HeadlessDialog* active = activeDialog();
    const auto next = std::find_if(m_posted.begin(), m_posted.end(), [active](const auto& posted) {
        return active && &posted.first->root() == active;
    });
    if (next == m_posted.end()) return false;
    const std::function<void()> action = std::move(next->second);
    m_posted.erase(next);
    if (action) action();
    return true;
}

void HeadlessPlatform::paintAll() {
    for (HeadlessDialog* dialog : std::vector(m_dialogs)) {
        for (HeadlessControl* control : dialog->allControls()) {
            if (auto* picture = dynamic_cast<HeadlessPicture*>(control)) picture->paintIfDue();
        }
    }
}

void HeadlessPlatform::settle() {
    for (int count = 0; runOnePosted(); ++count) {
        if (count == mostPosted) throw std::logic_error("posted actions go on for ever");
    }
    paintAll();
    // A paint may have posted something; that is then done before the user sees the picture.
    if (runOnePosted()) settle();
}

}  // namespace lx
