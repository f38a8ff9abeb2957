// The service table as a module finds it, and a design call as a host makes it.
#include "host/host_services.h"

#include <gtest/gtest.h>

#include <cstring>

#include "host/calls.h"
#include "platform/text.h"

namespace lx::host {
namespace {

template <class F>
F entry(std::size_t position) {
    return reinterpret_cast<F>(exportTable()[position]);
}

TEST(Services, TheFolderEntryKeepsToItsBuffer) {
    HostServices services;
    services.settings.library = "/shared/lib";
    services.settings.catalogue = std::nullopt;
    char folder[260] = "";
    const auto folderEntry = entry<int (*)(int, char*, int)>(1);
    EXPECT_EQ(folderEntry(2, folder, sizeof folder), 1);
    EXPECT_EQ(std::string(folder, 11), "/shared/lib");
    EXPECT_EQ(std::strlen(folder), 12U) << "a separator at the end";
    EXPECT_EQ(folderEntry(3, folder, sizeof folder), 0);
    EXPECT_EQ(folderEntry(2, folder, 5), 0) << "a buffer that is too small";
}

const char* g_write = nullptr;
std::size_t g_writeSize = 0;

int LX_STDCALL writingCall(void*, int32_t, int32_t, int32_t, double, double, double, char* text,
                           int32_t* a, int32_t* b, OpeningBlock block, int32_t exterior) {
    if (g_write != nullptr) std::memcpy(text, g_write, g_writeSize);
    *a += block.headShape;
    *b = exterior;
    return 1;
}

CallOutcome designCall(const std::string& bytes) {
    g_write = bytes.empty() ? nullptr : bytes.data();
    g_writeSize = bytes.size();
    ModuleCalls calls;
    calls.CallLXdata6 = writingCall;
    CallRequest request;
    request.opening.a = 10;
    request.opening.exterior = 1;
    return run(calls, request, nullptr);
}

TEST(Calls, TellWhatTheModuleDidToTheBuffer) {
    CallOutcome outcome = designCall("");
    EXPECT_EQ(outcome.text, std::nullopt);
    EXPECT_EQ(outcome.a, 9);
    EXPECT_EQ(outcome.b, 1);
    EXPECT_EQ(report(outcome), "CallLXdata6\nresult 1\ntext untouched\nA 9\nB 1\n");

    outcome = designCall(std::string("P1\r\n\xC8", 6));
    EXPECT_EQ(outcome.text, "P1\r\n\xC8");
    EXPECT_NE(report(outcome).find("text \"P1\\r\\nČ\"\n"), std::string::npos);

    EXPECT_FALSE(designCall(std::string(1023, 'x') + '\0').overran);
    EXPECT_TRUE(designCall(std::string(1024, 'x')).overran) << "no zero within the promised bytes";
    EXPECT_TRUE(designCall(std::string(3, 'x') + '\0' + std::string(1500, 'x')).overran);
    EXPECT_THROW(run({}, {}, nullptr), std::runtime_error);
}

}  // namespace
}  // namespace lx::host
