// The driver over real windows of the same process, by their handles and messages alone. What
// messages cannot tell, windows of the module answer to the private message.
#pragma once

#include <memory>

#include "host/driver/driver.h"

struct HWND__;

namespace lx::host {

class Stepper;

// Made and used on the thread that runs the windows; one at a time. The limit is 10 seconds times
// the number in the environment variable LX_DRIVER_LIMIT, for slow machines.
class WindowsDriver final : public Driver {
public:
    WindowsDriver();
    ~WindowsDriver() override;

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
    void repaint() override;
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
    void settle() override;
    int limit() const override;

private:
    using Window = HWND__*;

    // The dialog or message box that waits for its user, under a popup menu too; waits for one.
    Window topDialog();
    // The same for acts, which a popup menu keeps away from it.
    Window actingDialog();
    Window control(ControlName name);
    // A control that a user could act on now.
    Window reachable(ControlName name, std::string_view act);
    Window list(ControlName name, int row);
    Window listView(ControlName name);
    Window focusedWindow();
    Window mouseTarget(ControlName picture, ScreenPoint& p, bool press);
    void chooseFromPopup(const std::string& path);
    void pickInCombo(Window combo, int row);
    bool step(const std::function<bool(Driver&)>& next);

    int m_limit;
    std::unique_ptr<Stepper> m_stepper;
    std::string m_mouseAt;                   // "x y", last in a dialog's own client area
    std::vector<std::string> m_armedPopups;  // chosen as menus open
    std::string m_abandoned;
    unsigned long long m_idleSince = 0;  // 0 = a step was done last
    bool m_givenUp = false;
};

}  // namespace lx::host
