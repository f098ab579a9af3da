#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/Language.h>

#include <string>

namespace Zel {

/// How the maker of an application is reached. The library knows nobody: an application sets this before it
/// shows its about window. What is empty isn't shown.
struct AboutContacts {
    std::string site;     ///< web address
    std::string email;    ///< mail address
    std::string phone;    ///< telephone number
    std::string registry; ///< web address of the entry in the public software registry
};

/// Replaces the contacts; windows that are made later show them.
ZEL_API void setAboutContacts(const AboutContacts& contacts);
/// What was set last; all empty at first.
ZEL_API const AboutContacts& getAboutContacts();

} // namespace Zel

/// The words of the about window, in the language that is selected when they are asked for; UTF-8. Those of
/// the application's contacts live until these are replaced, all others as long as the program.
namespace lng::View::About {

/// "About" or "О программе".
ZEL_API const char* about();
/// "Version:" or "Версия:".
ZEL_API const char* version();
/// "Site:" or "Сайт:".
ZEL_API const char* site();
/// "e-mail:".
ZEL_API const char* email();
/// "Phone:" or "Телефон:".
ZEL_API const char* phone();
/// "Software registry" or "Реестр программного обеспечения".
ZEL_API const char* registry();
/// "License agreement" or "Лицензионное соглашение".
ZEL_API const char* eula();
/// "Third party components" or "Компоненты третьих сторон".
ZEL_API const char* thirdParty();
/// "SPE «Quilver»" or "ООО «НПП «Квилвер»".
ZEL_API const char* organizationValue();
/// The contacts' web address.
ZEL_API const char* siteValue();
/// The contacts' mail address.
ZEL_API const char* emailValue();
/// The same as a link, with the scheme "mailto:".
ZEL_API const char* emailUri();
/// The contacts' telephone number.
ZEL_API const char* phoneValue();

} // namespace lng::View::About
