#pragma once

namespace Zel {

/// An object of the application that the library only passes on by pointer. It is never defined here: the
/// library neither looks into such an object nor owns it.
class Object;

} // namespace Zel
