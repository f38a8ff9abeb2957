// Rows of the lists, whichever kind: which of them are shown, and what keys do to the caret.
#pragma once

#include "platform/keys.h"

namespace lx {

// The edges of a list's window.
constexpr int listEdge = 2;

// Where a key of a list moves the caret to; current may be -1. -1 = the key moves none.
int rowAfterKey(int key, int current, int count, int page);

// The first row to show so that the row is seen.
int topToShow(int row, int top, int shown);

}  // namespace lx
