#include <ZelCommonView/oscillogram/IOscillograph.h>

namespace ZelView {

IOscillograph::IOscillograph() = default;

IOscillograph::~IOscillograph() = default;

} // namespace ZelView
