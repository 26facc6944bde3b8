// The least that a program linked to the extension's libraries can do.

#include <cstdio>

int main()
{
    std::puts("hello");
}
