#pragma once

/// What another project may well have under this name.
struct Aircraft {
    int seats;
};
