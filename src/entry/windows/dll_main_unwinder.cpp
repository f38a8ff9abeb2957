// The unwind tables of the 32-bit module, registered with the unwinder that is linked into it. The
// compiler's start-up code would rather register them with a libgcc_s_dw2-1.dll that the host has
// loaded; exceptions here would find no handler then and end the host's process. The link option
// --wrap puts this in its place.
#include <windows.h>

#include <cstdlib>

extern "C" {

void __register_frame_info(const void* tables, void* object);
void* __deregister_frame_info(const void* tables);
void __wrap___gcc_register_frame();

extern const unsigned char lx_amongUnwindTables[];
extern const IMAGE_DOS_HEADER __ImageBase;

}  // extern "C"

// The linker gives no name to the start of the tables, and the name of their section is too long
// for an image. So the section is found by a place in it.
asm(".section .eh_frame\n"
    "_lx_amongUnwindTables:\n"
    ".text\n");

namespace {

const unsigned char* unwindTables() {
    const auto* const image = reinterpret_cast<const unsigned char*>(&__ImageBase);
    const auto* const headers =
        reinterpret_cast<const IMAGE_NT_HEADERS*>(image + __ImageBase.e_lfanew);
    const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(headers);
    while (lx_amongUnwindTables - (image + section->VirtualAddress) >=
           static_cast<std::ptrdiff_t>(section->Misc.VirtualSize)) {
        ++section;
    }
    return image + section->VirtualAddress;
}

}  // namespace

// The first constructor of all; what is registered to be done at the end is done last there.
extern "C" void __wrap___gcc_register_frame() {
    // The unwinder's own; it needs six words.
    static void* object[8];
    __register_frame_info(unwindTables(), object);
    std::atexit([] { __deregister_frame_info(unwindTables()); });
}
