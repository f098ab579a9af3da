#include "Pages.h"

namespace gallery {

#define PAGE(file, name, english, russian) std::unique_ptr<Gtk::Widget> make##file##Page();
#include "PageList.h"
#undef PAGE

const std::vector<Page>& allPages() {
    static const std::vector<Page> pages{
#define PAGE(file, name, english, russian) Page{name, {english, russian}, &make##file##Page, sourceOf(#file)},
#include "PageList.h"
#undef PAGE
    };
    return pages;
}

const Page* findPage(const std::string& name) {
    for (const Page& page : allPages())
        if (page.name == name)
            return &page;
    return nullptr;
}

} // namespace gallery
