#pragma once

namespace skyvane::PhotoDecoder {

/// Sandbox: gives up, for good, everything but computing, reading the standard input and writing the standard
/// output: files, connections, processes, threads. The calls that stay are an allow-list; any other fails
/// with EPERM. Bounds memory to 256 MiB (not where a sanitizer watches) and processor time to 2 s, and ends
/// the process with the thread that started it. False where the kernel did not take all of it, but for what
/// an older one cannot know (Landlock).
bool confine();

} // namespace skyvane::PhotoDecoder
