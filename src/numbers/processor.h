// Loops in several versions for the base x86-64, v3 and v4 processors, chosen when the module is loaded. They vectorise across
// independent entries only and never fuse a multiplication with an addition, so every version gives the same bits. Compilers that cannot
// make them (g++ before 12) make the base version alone.
#pragma once

#if defined(__x86_64__) && defined(__GNUC__) && __GNUC__ >= 12 && !defined(__clang__) && !defined(QUARN_ONE_PROCESSOR_VERSION)
#define QUARN_PROCESSOR_VERSIONS [[gnu::target_clones("default", "arch=x86-64-v3", "arch=x86-64-v4")]]
/// Functions of one name, one for each processor, where the versions are not the same code.
#define QUARN_VERSION_BASE [[gnu::target("default")]]
#define QUARN_VERSION_V3 [[gnu::target("arch=x86-64-v3")]]
#define QUARN_VERSION_V4 [[gnu::target("arch=x86-64-v4")]]
#else
#define QUARN_PROCESSOR_VERSIONS
#endif
