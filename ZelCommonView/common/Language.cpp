#include <ZelCommonView/common/Language.h>

namespace lng {

unsigned char language = 0;

} // namespace lng
