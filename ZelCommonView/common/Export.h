#pragma once

/// Marks what the shared library exports; everything else stays hidden. It has the same meaning for users of
/// the library, whose own visibility settings would otherwise hide the type information that checked casts
/// compare.
#define ZEL_API __attribute__((visibility("default")))
