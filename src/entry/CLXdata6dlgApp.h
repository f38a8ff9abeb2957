// The module's application object: made when the module is loaded, it knows the host and owns the
// values that outlive a dialog.
#pragma once

#include "design/module_values.h"
#include "entry/host_links.h"

namespace lx {

class CLXdata6dlgApp {
public:
    // All three must outlive the application.
    CLXdata6dlgApp(Platform& platform, Files& files, Modules& modules);
    CLXdata6dlgApp(const CLXdata6dlgApp&) = delete;
    CLXdata6dlgApp& operator=(const CLXdata6dlgApp&) = delete;

    // Finds the host, the data folder and the help file. Runs inside the system's loader: looks
    // modules up and makes texts, nothing else.
    bool InitInstance();
    // Forgets data folder and help file.
    int ExitInstance();

    Context& context() { return m_context; }

    // Claims the module for one dialog call; held() is false while another one has it.
    class Call {
    public:
        explicit Call(CLXdata6dlgApp& app) : m_app(app), m_held(!app.m_inCall) {
            app.m_inCall = true;
        }
        ~Call() {
            if (m_held) m_app.m_inCall = false;
        }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        bool held() const { return m_held; }

    private:
        CLXdata6dlgApp& m_app;
        bool m_held;
    };

private:
    Modules& m_modules;
    Path m_dataFolder;
    ModuleValues m_values;
    HostLinks m_host;
    Context m_context;
    bool m_inCall = false;
};

}  // namespace lx
