/* lxdata6dlg.dll: the lintel module. What a host program compiles against.
 *
 * All texts that go in or out are code page 1250. The functions are called on the host's user-interface
 * thread; the ones that show a dialog return when the user has closed it.
 */
#ifndef LXDATA6DLG_H
#define LXDATA6DLG_H

#include <stdint.h>

#if defined(_WIN32)
#define LX_STDCALL __stdcall
#define LX_CDECL __cdecl
#else
#define LX_STDCALL
#define LX_CDECL
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The host's description of the opening that the user picked in the drawing. Little-endian, 208 bytes, doubles
 * on 8-byte boundaries. Only the fields with a comment are read. Lengths marked "units" are in the host's
 * drawing units. */
typedef struct OpeningBlock {
    int16_t openingKind; /* 0: 8 = the wider of two opening widths counts (see width1, width2) */
    uint8_t gap2[6];
    double triple1[3];    /* 8 */
    double width1;        /* 32: mm */
    double unread40;      /* 40 */
    double width2;        /* 48: mm; for kind 8 the opening width when width1 is smaller */
    double triple3[3];    /* 56 */
    double bend1Step;     /* 80: units */
    double unread88;      /* 88 */
    double bend1Run;      /* 96: units */
    double unread104;     /* 104 */
    double bend2Step;     /* 112: units */
    double unread120;     /* 120 */
    double bend2Run;      /* 128: units */
    double unread136;     /* 136 */
    int16_t unread144[3]; /* 144 */
    uint8_t gap150[2];
    double unread152;      /* 152 */
    double unread160;      /* 160 */
    double bend3Step;      /* 168: units */
    double unread176;      /* 176 */
    int16_t unread184;     /* 184 */
    int16_t headShape;     /* 186: 3, 4 or 5; empty block: -1 */
    int16_t unread188;     /* 188: empty block: -1 */
    uint8_t gap190[2];
    int32_t unread192; /* 192 */
    uint8_t unread196; /* 196 */
    uint8_t gap197[3];
    int32_t unread200; /* 200 */
    uint8_t gap204[4];
} OpeningBlock;

#ifdef __cplusplus
}
#endif

#endif
