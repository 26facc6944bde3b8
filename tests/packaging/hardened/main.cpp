#include <cstdio>
#include <cstring>

/// Copies what it is given to where there may not be room for it.
int main(int argc, char* argv[])
{
    char text[16];
    std::strcpy(text, argv[argc - 1]);
    return std::puts(text);
}
