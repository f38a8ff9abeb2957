#include "platform/windows/hand_cursor.h"

#include <array>
#include <string_view>

namespace lx {
namespace {

constexpr int side = 32;  // pixels
constexpr POINT hotSpot = {8, 1};

// Black outline, white inside; the rest of the square lets the screen through.
constexpr std::string_view hand[] = {
    "        ##",            //
    "       #..#",           //
    "       #..#",           //
    "       #..#",           //
    "       #..#",           //
    "       #..#",           //
    "       #..###",         //
    "       #..#..###",      //
    "       #..#..#..###",   //
    "   ##  #..#..#..#..#",  //
    "  #..# #..#..#..#..#",  //
    "  #...##...........#",  //
    "   #...#...........#",  //
    "    #..............#",  //
    "    #..............#",  //
    "     #.............#",  //
    "     #............#",   //
    "      #...........#",   //
    "      #..........#",    //
    "       #.........#",    //
    "       #........#",     //
    "       ##########",     //
};

// One bit a pixel, the leftmost one highest.
using Plane = std::array<BYTE, side * side / 8>;

}  // namespace

HCURSOR makeHandCursor(HINSTANCE instance) {
    Plane screen;  // where the screen shows
    Plane white = {};
    screen.fill(0xFF);
    for (std::size_t y = 0; y < std::size(hand); ++y) {
        for (std::size_t x = 0; x < hand[y].size(); ++x) {
            const auto bit = static_cast<BYTE>(0x80U >> (x % 8));
            const std::size_t place = (y * side + x) / 8;
            if (hand[y][x] != ' ') screen[place] = static_cast<BYTE>(screen[place] & ~bit);
            if (hand[y][x] == '.') white[place] = static_cast<BYTE>(white[place] | bit);
        }
    }
    return CreateCursor(instance, hotSpot.x, hotSpot.y, side, side, screen.data(), white.data());
}

}  // namespace lx
