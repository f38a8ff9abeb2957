// Acts as the user on the headless platform's own objects.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/driver/driver.h"
#include "platform/headless/headless_platform.h"

namespace lx {
class HeadlessListView;
class HeadlessPicture;
class HeadlessTabControl;
}  // namespace lx

namespace lx::host {

// One at a time per platform, which must outlive it.
class HeadlessDriver final : public Driver {
public:
    explicit HeadlessDriver(HeadlessPlatform& platform);
    ~HeadlessDriver() override;

    void expectDialog(std::string_view title) override;
    bool anyDialogOpen() override;
    std::string title() override;
    MessageBoxLook messageBox() override;
    bool messageBoxOpen() override;
    void answer(std::string_view button) override;
    void closeDialog() override;

    void press(ControlName button) override;
    void check(ControlName box, bool on) override;
    void selectRow(ControlName list, std::string_view row) override;
    void selectRowAt(ControlName list, int row) override;
    void addRowAt(ControlName list, int row) override;
    void doubleClickRow(ControlName list, int row) override;
    void doubleClickGround(ControlName list) override;
    void rightClickRow(ControlName list, int row) override;
    void scrollToRow(ControlName list, int row) override;
    void clickHeading(ControlName list, std::string_view heading) override;
    void setColumnWidth(ControlName list, int column, int pixels) override;
    void setColumnOrder(ControlName list, const std::vector<int>& order) override;
    void selectTab(std::string_view title) override;
    void focus(ControlName control) override;
    void type(std::string_view text) override;
    void key(std::string_view name) override;
    void chooseMenu(std::string_view path) override;
    void choosePopup(std::string_view path) override;
    void closePopup() override;
    void mouseMove(ControlName picture, ScreenPoint p, bool leftDown) override;
    void mouseDown(ControlName picture, ScreenPoint p) override;
    void mouseUp(ControlName picture, ScreenPoint p) override;
    void rightClick(ControlName picture, ScreenPoint p) override;
    ScreenPoint regionPoint(ControlName picture, std::string_view region) override;
    std::vector<std::string> regions(ControlName picture) override;
    void resizeDialog(ScreenSize outer) override;
    void moveDialog(ScreenPoint topLeft) override;
    void setDialogState(std::string_view state) override;
    void repaint() override {}
    void wait(int milliseconds) override;

    std::string text(ControlName control) override;
    bool exists(ControlName control) override;
    bool enabled(ControlName control) override;
    bool visible(ControlName control) override;
    ScreenArea area(ControlName control) override;
    bool checked(ControlName box) override;
    int rowCount(ControlName list) override;
    RowLook row(ControlName list, int row) override;
    std::vector<int> selectedRows(ControlName list) override;
    std::string selectedTab() override;
    std::string focusedControl() override;
    std::string defaultButton() override;
    std::string editSelection(ControlName edit) override;
    std::string tooltip(ControlName control) override;
    std::string cursor(ControlName picture) override;
    std::string clipboard() override;
    std::vector<std::string> headings(ControlName list) override;
    std::vector<int> columnWidths(ControlName list) override;
    std::vector<int> columnOrder(ControlName list) override;
    std::vector<std::string> menu() override;
    std::vector<std::string> popup() override;
    ScreenSize dialogSize() override;
    std::string placement() override;
    std::string describe(std::string_view topic) override;
    std::string drawing(ControlName picture) override;
    std::string dump() override;
    std::string screenshot(const std::string& fileWithoutExtension) override;
    std::vector<std::string> layoutFaults() override;

    void drive(std::function<bool(Driver&)> next) override;
    void cancelTop() override;
    std::string abandoned() override;
    void settle() override {}
    int limit() const override;

private:
    bool step();
    HeadlessDialog& dialog();
    HeadlessControl& control(ControlName name);
    template <class C>
    C& controlOf(ControlName name, const char* what) {
        auto* found = dynamic_cast<C*>(&control(name));
        if (found == nullptr) throw DriverError("\"" + std::string(name) + "\" is no " + what);
        return *found;
    }
    HeadlessListView& listView(ControlName name);
    HeadlessTabControl& tabs();
    HeadlessPicture& picture(ControlName name);
    bool waitUntil(const std::function<bool()>& done);
    // What stands in front, for messages.
    std::string situation();

    HeadlessPlatform& m_platform;
    std::function<bool(Driver&)> m_next;
    std::optional<Point> m_mouse;            // last in a dialog's own client area
    std::deque<std::string> m_popupChoices;  // for menus that are yet to open
    std::size_t m_strandedBefore = 0;
};

}  // namespace lx::host
