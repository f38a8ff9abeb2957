/* lxdata6dlg.dll: the lintel module. What a host program compiles against.
 *
 * The module is loaded into the host's process and exports four functions under their plain names.
 * All are called on the host's user-interface thread, in any order and any number of times; the
 * ones that show a dialog return when the user has closed it. While a dialog of the module is open,
 * a second call that would show one returns at once and touches nothing: 2, or -1 from LintelErase.
 *
 * Texts that go in or out are zero-terminated, in code page 1250. Folder names are bytes of the
 * system's own code page. The caller owns every buffer and integer that it passes; the module keeps
 * no pointer to them after the call and hands out no memory of its own. Texts, lists and folders
 * that the host's services return stay the host's; the module copies them at once.
 */
#ifndef LXDATA6DLG_H
#define LXDATA6DLG_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define LX_STDCALL __stdcall
#define LX_CDECL __cdecl
#else
#define LX_STDCALL
#define LX_CDECL
#endif

#ifdef __cplusplus
#define LX_STATIC_ASSERT(condition, text) static_assert(condition, text)
extern "C" {
#else
#define LX_STATIC_ASSERT(condition, text) _Static_assert(condition, text)
#endif

/* ---- the opening ---------------------------------------------------------------------------- */

/* The host's description of the opening that the user picked in the drawing. Little-endian, 208
 * bytes, doubles on 8-byte boundaries. Only the fields with a comment behind their offset are read.
 * Lengths marked "units" are in the host's drawing units, see LX_SERVICE_UNITS_PER_METRE. Numbers
 * that are not finite or do not fit the module's 32-bit millimetres are brought to 0 or to the end
 * of the range. */
typedef struct OpeningBlock {
    int16_t openingKind; /* 0: 8 = there are two opening widths, width1 and width2 */
    uint8_t gap2[6];
    double triple1[3];    /* 8 */
    double width1;        /* 32: mm */
    double unread40;      /* 40 */
    double width2;        /* 48: mm; for kind 8 counts for openingWidth when width1 is smaller */
    double triple3[3];    /* 56 */
    double bend1Step;     /* 80: units */
    double unread88;      /* 88 */
    double bend1Run;      /* 96: units */
    double unread104;     /* 104 */
    double bend2Step;     /* 112: units; also the run of the third bend (LX_HEAD_THREE_BENDS) */
    double unread120;     /* 120 */
    double bend2Run;      /* 128: units */
    double unread136;     /* 136 */
    int16_t unread144[3]; /* 144 */
    uint8_t gap150[2];
    double unread152;  /* 152 */
    double unread160;  /* 160 */
    double bend3Step;  /* 168: units */
    double unread176;  /* 176 */
    int16_t unread184; /* 184 */
    int16_t headShape; /* 186: LX_HEAD_..., any other value = one or two bends; empty block: -1 */
    int16_t unread188; /* 188: empty block: -1 */
    uint8_t gap190[2];
    int32_t unread192; /* 192 */
    uint8_t unread196; /* 196 */
    uint8_t gap197[3];
    int32_t unread200; /* 200 */
    uint8_t gap204[4];
} OpeningBlock;

enum {
    LX_OPENING_TWO_WIDTHS = 8, /* openingKind */
    LX_HEAD_STEP_DOWN = 3,     /* headShape: a positive first step is taken as negative */
    LX_HEAD_SLOPED = 4,        /* headShape: two bends, the second one sloping */
    LX_HEAD_THREE_BENDS = 5    /* headShape: three bends, the third one sloping */
};

#define LX_ASSERT_OFFSET(field, offset) \
    LX_STATIC_ASSERT(offsetof(OpeningBlock, field) == (offset), "OpeningBlock: " #field)
LX_STATIC_ASSERT(sizeof(OpeningBlock) == 208, "OpeningBlock is 208 bytes");
LX_ASSERT_OFFSET(openingKind, 0);
LX_ASSERT_OFFSET(triple1, 8);
LX_ASSERT_OFFSET(width1, 32);
LX_ASSERT_OFFSET(unread40, 40);
LX_ASSERT_OFFSET(width2, 48);
LX_ASSERT_OFFSET(triple3, 56);
LX_ASSERT_OFFSET(bend1Step, 80);
LX_ASSERT_OFFSET(unread88, 88);
LX_ASSERT_OFFSET(bend1Run, 96);
LX_ASSERT_OFFSET(unread104, 104);
LX_ASSERT_OFFSET(bend2Step, 112);
LX_ASSERT_OFFSET(unread120, 120);
LX_ASSERT_OFFSET(bend2Run, 128);
LX_ASSERT_OFFSET(unread136, 136);
LX_ASSERT_OFFSET(unread144, 144);
LX_ASSERT_OFFSET(unread152, 152);
LX_ASSERT_OFFSET(unread160, 160);
LX_ASSERT_OFFSET(bend3Step, 168);
LX_ASSERT_OFFSET(unread176, 176);
LX_ASSERT_OFFSET(unread184, 184);
LX_ASSERT_OFFSET(headShape, 186);
LX_ASSERT_OFFSET(unread188, 188);
LX_ASSERT_OFFSET(unread192, 192);
LX_ASSERT_OFFSET(unread196, 196);
LX_ASSERT_OFFSET(unread200, 200);
#undef LX_ASSERT_OFFSET

/* ---- results -------------------------------------------------------------------------------- */

/* What the dialog calls return. */
enum {
    LX_DIALOG_FAILED = -1, /* the dialog could not be made */
    LX_DIALOG_OK = 1,
    LX_DIALOG_CANCEL = 2 /* left without OK, or the arguments were refused */
};

/* Bits of result value A of CallLXdata6 after OK: what to draw beside the lintel. */
enum {
    LX_INSERT_LINTEL = 1, /* always there */
    LX_INSERT_DESCRIPTION = 2,
    LX_INSERT_BUBBLE = 4,
    LX_INSERT_DIAGONALS = 8
};

/* Result value B of CallLXdata6 after OK: whether the folded section is drawn. */
enum { LX_NO_FOLDED_SECTION = 0, LX_FOLDED_SECTION = 1 };

/* Bits that LintelErase returns: what to erase. */
enum {
    LX_ERASE_CANCELLED = -1,
    LX_ERASE_LINTEL = 1,
    LX_ERASE_FOLDED_SECTION = 2,
    LX_ERASE_BUBBLE = 4,
    LX_ERASE_DESCRIPTION = 8
};

/* What mergeLibraryFiles brings up to date. */
enum { LX_MERGE_LIBRARY = 2, LX_MERGE_CATALOGUE = 3 };

/* What mergeLibraryFiles returns. */
enum {
    LX_MERGE_DONE = 0,
    LX_MERGE_UNKNOWN_MODE = 1,
    LX_MERGE_NO_SOURCE = -1, /* no name, or the supplied file cannot be read */
    LX_MERGE_NO_TARGET = -2  /* no host, folder or lock, or the target cannot be read or replaced */
};

/* Bytes that a result text buffer must hold: at most 1023 of text, and the zero. Longer text is
 * cut. */
#define LX_RESULT_TEXT_SIZE 1024

/* ---- the exported functions ----------------------------------------------------------------- */

/* Designs the lintel of one opening in the design dialog.
 *
 * Refused with a message box and LX_DIALOG_CANCEL, nothing else touched: a wall above 2000 mm, a
 * wall below 70 mm, an opening below 300 mm (in this order; the bounds pass; not a number counts as
 * too small).
 *
 * After the dialog has run, whatever it returned: resultText holds the bubble name, CR LF and the
 * description, or "nezad\xE1no" when there is no text; *resultA and *resultB hold the LX_INSERT_
 * bits and LX_FOLDED_SECTION. After Cancel they are as they came in and the text is "nezad\xE1no",
 * unless an OK that was refused has set them before; so look at them after LX_DIALOG_OK alone. On
 * entry, *resultB other than 0 says that a lintel with a folded section is being changed (the help
 * topic follows it). The design itself is left in the file LXDATA6I.tmp in the system's temporary
 * folder. A file of that name that is there when the dialog opens is read as the design to change,
 * and deleted: a host that does not fetch the file removes it.
 *
 * parent        window handle (HWND) of the owner, or null
 * openingWidth  mm
 * wallThickness mm
 * level         m; 0 (or not a number) = there is no opening object, opening is ignored
 * resultText    LX_RESULT_TEXT_SIZE bytes, or null
 * resultA/B     in and out, or null (then 0)
 * opening       by value; an empty block is all zero but headShape and unread188, which are -1
 * exteriorSide  low byte only: not 0 = the exterior is at the left edge of the section
 */
int LX_STDCALL CallLXdata6(void* parent, int32_t unused2, int32_t unused3, int32_t unused4,
                           double openingWidth, double wallThickness, double level,
                           char* resultText, int32_t* resultA, int32_t* resultB,
                           OpeningBlock opening, int32_t exteriorSide);

/* Lets the user choose one of the two catalogues and opens it in the catalogue browser. Returns
 * LX_DIALOG_OK (also when no catalogue was chosen), LX_DIALOG_CANCEL (also when the catalogue's
 * file cannot be opened) or LX_DIALOG_FAILED. Asks the host for the lock on the catalogues, without
 * which nothing can be changed. */
int LX_STDCALL CallLXdata6Base(void* parent);

/* Asks in the erase dialog which drawn elements of a lintel are to be erased. Returns
 * LX_ERASE_ bits (0 = none, or the dialog could not be shown) or LX_ERASE_CANCELLED. The host does
 * the erasing. */
int LX_STDCALL LintelErase(void* parent);

/* Brings an installed file up to date from a supplied one; shows nothing. LX_MERGE_LIBRARY puts the
 * supplied library in the place of the installed one. LX_MERGE_CATALOGUE merges a catalogue into
 * the installed one of its kind: types and items of the same name are updated in their place, new
 * ones follow, the user's own stay. With any result but LX_MERGE_DONE the installed file is as it
 * was.
 *
 * sourcePath   full name of the supplied file; a catalogue's name that ends in "LXDATA6S.DAT",
 *              exactly so, is one of steel sections, any other of precast lintels
 * targetFolder folder of the installed files, no lock is asked for; or null or empty for the host's
 *              folder LX_FOLDER_CATALOGUE, under the host's lock. A lock is released at the end of
 *              a merge even if it was not asked for
 * mode         LX_MERGE_...
 */
int LX_CDECL mergeLibraryFiles(void* unused, const char* sourcePath, const char* targetFolder,
                               int32_t mode);

typedef int(LX_STDCALL* LxCallLXdata6)(void*, int32_t, int32_t, int32_t, double, double, double,
                                       char*, int32_t*, int32_t*, OpeningBlock, int32_t);
typedef int(LX_STDCALL* LxCallLXdata6Base)(void*);
typedef int(LX_STDCALL* LxLintelErase)(void*);
typedef int(LX_CDECL* LxMergeLibraryFiles)(void*, const char*, const char*, int32_t);

/* ---- what the host exports ------------------------------------------------------------------ */

/* The module looks for the loaded programs VORDAN2D.ARX and VORDANLT.EXE. Folders are asked of the
 * first that is loaded, in this order, once, while the module is being loaded; services of
 * VORDANLT.EXE before VORDAN2D.ARX, afresh at every use. Both exports may be missing.
 *
 *   GetProfilePath(0, buffer, 261)  puts the user's profile folder into buffer; either convention.
 * The module keeps its own files in the subfolder "DAT" of it. Without it: of the program's folder.
 *   GetExport2D()                   returns the service table, or null
 *
 * The table is a row of function addresses; null = the host has no such service. The caller removes
 * the arguments of every service. */
enum {
    LX_SERVICE_FOLDER = 1,
    LX_SERVICE_VARIABLE = 29,
    LX_SERVICE_UNITS_PER_METRE = 33,
    LX_SERVICE_LOCK = 44,
    LX_SERVICE_TEXT_STYLES = 59,
    LX_SERVICE_TITLE = 94,
    LX_SERVICE_COUNT = 95 /* entries that the table must have */
};

enum { LX_FOLDER_LIBRARY = 2, LX_FOLDER_CATALOGUE = 3 };
enum { LX_LOCK_LIBRARY = 2, LX_LOCK_CATALOGUE = 3 };
enum {
    LX_LOCK_REQUEST = 9,        /* mode of a request; answer 1 = granted */
    LX_LOCK_RELEASE = 4,        /* gives back a granted lock */
    LX_LOCK_RELEASE_REFUSED = 2 /* ends a request that was not granted */
};

/* Puts a folder with its trailing separator into the buffer of size bytes: 260, or 1024 for
 * mergeLibraryFiles. Only the low byte of the answer counts: not 0 = the buffer holds it. */
typedef unsigned char(LX_CDECL* LxFolderService)(int folder, char* buffer, int size);
/* The value of a variable such as "DWGNAME" (the drawing's file name), or null. */
typedef const char*(LX_CDECL* LxVariableService)(const char* name);
typedef int(LX_CDECL* LxUnitsService)(void);
typedef int(LX_CDECL* LxLockService)(int resource, int mode);
/* Names of the drawing's text styles, with their number in *count. */
typedef const char* const*(LX_CDECL* LxTextStylesService)(int* count);
/* The program's title, used as the caption of error messages. */
typedef const char*(LX_CDECL* LxTitleService)(void);

#ifdef __cplusplus
}
#endif

#endif
