/// The pages of the gallery: one for each family of classes.
#pragma once

#include <ZelCommonView/common/Language.h>

#include <gtkmm/widget.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace gallery {

/// One page: how it is called and how it is made.
struct Page {
    const char* name;                         ///< on the command line and in the names of pictures
    const char* titles[2];                    ///< English and Russian
    std::unique_ptr<Gtk::Widget> (*create)(); ///< a new widget in the current language
    std::string_view source;                  ///< the text of the page's own source file, UTF-8

    const char* getTitle() const { return titles[lng::index()]; }
};

/// All pages in the order of the sidebar.
const std::vector<Page>& allPages();

/// The page of this name, null if there is none.
const Page* findPage(const std::string& name);

/// The text of the file `pages/<file>.cpp` as it was when the program was built; empty if there is none.
std::string_view sourceOf(std::string_view file);

/// The text in the current language.
inline const char* words(const char* english, const char* russian) {
    return lng::index() == 0 ? english : russian;
}

} // namespace gallery
