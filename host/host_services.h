// The stand-in host's side of the service table: a row of plain C functions as the module finds it,
// answering from HostSettings and recording what was asked.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "host/host_settings.h"

namespace lx::host {

// While one exists, the functions below answer for it. One at a time.
class HostServices {
public:
    HostServices();
    ~HostServices();
    HostServices(const HostServices&) = delete;
    HostServices& operator=(const HostServices&) = delete;

    struct LockCall {
        int resource = 0;
        int mode = 0;    // 9 requests; 4 and 2 release
        int answer = 0;  // what the host answered; 0 for releases
    };

    HostSettings settings;
    std::vector<LockCall> lockCalls;
    std::vector<int> helpTopics;
    std::string helpFile;  // as named in the last help request, in the system's code page

    // Forgets what was asked.
    void clearLogs();
    // One call a line: "request 2 mode 9 answer 1", "release 2 code 4".
    std::vector<std::string> lockLog() const;

    // What GetExport2D gives: null when the settings say that there is no table.
    void** table();

private:
    friend struct ServiceEntries;
    // A lock of all programs that share its folder is a folder in there, made and removed.
    std::string sharedLock(int resource) const;
    int requestShared(int resource);
    void releaseShared(int resource);
    std::set<int> m_held;

    // Texts handed out as pointers, valid until the entry is asked again.
    std::string m_variable;
    std::string m_title;
    std::vector<std::string> m_styles;
    std::vector<const char*> m_stylePointers;
    std::vector<void*> m_table;
};

// Bodies of what VORDANLT.EXE and VORDAN2D.ARX export, and of vdhelp.dll's entry. All answer
// "nothing" while there is no HostServices.
// GetExport2D: the table, or null.
void** exportTable();
// GetProfilePath of the program and of VORDAN2D.ARX: at most size bytes with the zero; 1 when told.
int profilePath(int reserved, char* buffer, int size);
int arxProfilePath(int reserved, char* buffer, int size);
// vdHtmlHelp: records the topic; 1.
int htmlHelp(void* owner, const char* file, unsigned command, std::uintptr_t topic);

}  // namespace lx::host
