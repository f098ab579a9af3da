#include <ZelCommonView/dialogs/AboutWords.h>

namespace {

Zel::AboutContacts aboutContacts;
std::string mailLink = "mailto:";

} // namespace

namespace Zel {

void setAboutContacts(const AboutContacts& contacts) {
    aboutContacts = contacts;
    mailLink = "mailto:" + contacts.email;
}

const AboutContacts& getAboutContacts() {
    return aboutContacts;
}

} // namespace Zel

namespace lng::View::About {

const char* about() {
    static const char* const ar[] = {"About", "О программе"};
    return ar[lng::index()];
}

const char* version() {
    static const char* const ar[] = {"Version:", "Версия:"};
    return ar[lng::index()];
}

const char* site() {
    static const char* const ar[] = {"Site:", "Сайт:"};
    return ar[lng::index()];
}

const char* email() {
    static const char* const ar[] = {"e-mail:", "e-mail:"};
    return ar[lng::index()];
}

const char* phone() {
    static const char* const ar[] = {"Phone:", "Телефон:"};
    return ar[lng::index()];
}

const char* registry() {
    static const char* const ar[] = {"Software registry", "Реестр программного обеспечения"};
    return ar[lng::index()];
}

const char* eula() {
    static const char* const ar[] = {"License agreement", "Лицензионное соглашение"};
    return ar[lng::index()];
}

const char* thirdParty() {
    static const char* const ar[] = {"Third party components", "Компоненты третьих сторон"};
    return ar[lng::index()];
}

const char* organizationValue() {
    static const char* const ar[] = {"SPE «Quilver»", "ООО «НПП «Квилвер»"};
    return ar[lng::index()];
}

const char* siteValue() {
    return aboutContacts.site.c_str();
}

const char* emailValue() {
    return aboutContacts.email.c_str();
}

const char* emailUri() {
    return mailLink.c_str();
}

const char* phoneValue() {
    return aboutContacts.phone.c_str();
}

} // namespace lng::View::About
