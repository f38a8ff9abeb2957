// Stands in for a folder without sources of its own on this platform.
namespace lx {}
