#include "Loader.h"

#include "Words.h"

#include <ZelCommonView/dialogs/WaitingDialogPresenter.h>

#include <atomic>
#include <exception>
#include <filesystem>
#include <optional>

namespace viewer {

namespace fs = std::filesystem;

namespace {

std::string progressText(int percent) {
    return std::string(words::reading()) + ": " + std::to_string(percent) + " %";
}

} // namespace

bool isLarge(const std::string& file) {
    // The parts of a record have one stem; whatever else bears it is small.
    const fs::path path(file);
    std::uintmax_t size = 0;
    std::error_code error;
    for (const fs::directory_entry& entry :
         fs::directory_iterator(path.has_parent_path() ? path.parent_path() : ".", error))
        if (entry.path().stem() == path.stem() && entry.is_regular_file(error))
            size += entry.file_size(error);
    return size >= largeFile;
}

record::Record loadBehindDialog(Zel::IView& parent, const std::string& file, record::Options options,
                                const std::function<void(record::Record&)>& prepare) {
    std::optional<record::Record> record;
    std::exception_ptr failure;
    std::atomic<bool> isStopped{false};
    {
        Zel::WaitingDialogPresenter dialog;
        int shown = -1;
        const std::function<bool(double)> own = std::move(options.progress);
        options.progress = [&](double fraction) {
            const int percent = static_cast<int>(fraction * 100);
            if (percent != shown)
                dialog.setMessage(progressText(percent));
            shown = percent;
            return (!own || own(fraction)) && !isStopped;
        };
        const auto work = [&] {
            try {
                record = record::open(file, options);
                if (prepare && !isStopped) {
                    dialog.setMessage(words::preparing());
                    prepare(*record);
                }
                if (isStopped)
                    throw record::Cancelled("the reading was cancelled");
            } catch (...) {
                failure = std::current_exception();
            }
        };
        dialog.open(&parent, progressText(0), words::reading(), work, true, [&] { isStopped = true; });
        // Escape ends the dialog but not the job; nobody waits for its result any more.
        isStopped = true;
    }
    if (failure)
        std::rethrow_exception(failure);
    return std::move(*record);
}

} // namespace viewer
