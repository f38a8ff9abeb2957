/* That a host in C compiles against the header and links with the import library. */
#include <lxdata6dlg.h>

int main(void) {
    char text[LX_RESULT_TEXT_SIZE] = "";
    int32_t a = 0;
    int32_t b = 0;
    OpeningBlock opening = {0};
    return CallLXdata6(0, 0, 0, 0, 1200.0, 300.0, 0.0, text, &a, &b, opening, 0) +
           CallLXdata6Base(0) + LintelErase(0) + mergeLibraryFiles(0, "", "", LX_MERGE_LIBRARY);
}
