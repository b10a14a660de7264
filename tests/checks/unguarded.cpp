#include <cstddef>
#include <vector>

// What a guard would guard: a frame larger than a page, a container's element, a copied text.
int main(int count, char** texts) {
    volatile char frame[16384];
    const std::vector<char> bytes(4);
    frame[static_cast<std::size_t>(count)] = texts[0][0];
    return bytes[static_cast<std::size_t>(count)] + frame[0];
}
