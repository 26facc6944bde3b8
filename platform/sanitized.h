#pragma once

/// SKYVANE_SANITIZED is defined where a sanitizer watches memory or threads: it reserves more address space
/// than any machine has memory, and takes several times the processor's time.
#ifndef __has_feature
#define __has_feature(feature) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || __has_feature(address_sanitizer)        \
    || __has_feature(thread_sanitizer)
#define SKYVANE_SANITIZED
#endif
