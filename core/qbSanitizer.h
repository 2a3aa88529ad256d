// Whether AddressSanitizer or ThreadSanitizer instruments the translation unit: GCC says so by a macro,
// Clang by __has_feature. Under AddressSanitizer the library gives every freed block back at once, so that
// the sanitizer sees each use after free.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define QB_MIT_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QB_MIT_ADDRESS_SANITIZER 1
#endif
#endif
#ifndef QB_MIT_ADDRESS_SANITIZER
#define QB_MIT_ADDRESS_SANITIZER 0
#endif

#if defined(__SANITIZE_THREAD__)
#define QB_MIT_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define QB_MIT_THREAD_SANITIZER 1
#endif
#endif
#ifndef QB_MIT_THREAD_SANITIZER
#define QB_MIT_THREAD_SANITIZER 0
#endif
