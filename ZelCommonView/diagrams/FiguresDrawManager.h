/// Pictures of figures without a window.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/Figure.h>

#include <map>
#include <memory>
#include <string>

namespace Zel {

/// What makes the pictures.
class ZEL_API IFiguresDrawEngine {
public:
    virtual ~IFiguresDrawEngine();

    /// Writes a PNG file of 500 by 400 pixels with the figures and the names of the axes. The figures are
    /// painted in the order of their keys, which mean nothing else; they are moved out, and the map keeps its
    /// keys with null pointers. Entries that are null already are left out.
    ///
    /// To be called on the GTK thread, whose main loop runs meanwhile until it has nothing to do, so that
    /// other handlers of the application run too. One that is always ready holds it up for two seconds at
    /// most. What can't be written is told as by `FragmentsDrawArea::saveSummaryImage`.
    virtual void saveToImage(const std::string& path, std::map<std::string, std::unique_ptr<Figure>>& figures,
                             const std::string& horizontalHeader, const std::string& verticalHeader) = 0;
};

/// The one engine of the process.
class ZEL_API FiguresDrawManager {
public:
    /// Made at the first use; lives as long as the process.
    static FiguresDrawManager& getInstance();

    FiguresDrawManager(const FiguresDrawManager&) = delete;
    FiguresDrawManager& operator=(const FiguresDrawManager&) = delete;

    /// See `IFiguresDrawEngine::saveToImage`.
    void saveToImage(const std::string& path, std::map<std::string, std::unique_ptr<Figure>>& figures,
                     const std::string& horizontalHeader, const std::string& verticalHeader);

private:
    FiguresDrawManager();
    ~FiguresDrawManager();

    std::unique_ptr<IFiguresDrawEngine> engine;
};

} // namespace Zel

namespace ZelView {

/// Makes the pictures with a `ZDiagram` off the screen.
class ZEL_API FiguresDrawEngine : public virtual Zel::IFiguresDrawEngine {
public:
    ~FiguresDrawEngine() override;

    void saveToImage(const std::string& path, std::map<std::string, std::unique_ptr<Zel::Figure>>& figures,
                     const std::string& horizontalHeader, const std::string& verticalHeader) override;
};

} // namespace ZelView
