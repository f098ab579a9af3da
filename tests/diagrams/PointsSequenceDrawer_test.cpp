#include "diagrams/Canvas.h"

#include <ZelCommonView/diagrams/PointsSequenceDrawer.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

using ZelView::PointsSequenceDrawer;

Zel::PointsSequence makeSequence(bool isClosed, bool hasLines, const std::string& text = "") {
    Zel::PointsSequence sequence;
    sequence.points = {{1, -2}, {9, -1}, {7, 3}, {2, 2}};
    sequence.color = {200, 30, 60, 128};
    sequence.text = text;
    sequence.closed = isClosed;
    sequence.lines = hasLines;
    return sequence;
}

void setColour(cairo_t* cr, double alpha) {
    cairo_set_source_rgba(cr, 200 / 255.0, 30 / 255.0, 60 / 255.0, alpha);
}

test::Picture bareLines(const Zel::PointsSequence& sequence,
                        const ZelView::CoordsConverter& converter = test::stretchable) {
    return test::paintBare([&](cairo_t* cr) {
        for (std::size_t i = 0; i < sequence.points.size(); ++i) {
            const double x = converter.getVisualX(sequence.points[i].x);
            const double y = converter.getVisualY(sequence.points[i].y);
            if (i == 0)
                cairo_move_to(cr, x, y);
            else
                cairo_line_to(cr, x, y);
        }
        if (sequence.closed)
            cairo_line_to(cr, converter.getVisualX(sequence.points[0].x),
                          converter.getVisualY(sequence.points[0].y));
        cairo_set_line_width(cr, 3);
        setColour(cr, 1);
        cairo_stroke(cr);
        cairo_show_text(cr, sequence.text.c_str());
    });
}

test::Picture bareDots(const Zel::PointsSequence& sequence) {
    return test::paintBare([&](cairo_t* cr) {
        setColour(cr, 128 / 255.0);
        for (const Zel::PointF& point : sequence.points) {
            const double x = test::stretchable.getVisualX(point.x);
            const double y = test::stretchable.getVisualY(point.y);
            cairo_move_to(cr, x, y);
            cairo_arc(cr, x, y, 3, 0, 6.283185307179586);
            cairo_fill(cr);
        }
        setColour(cr, 1);
        cairo_show_text(cr, sequence.text.c_str());
    });
}

} // namespace

TEST(PointsSequenceDrawer, PaintsAPathThreePixelsWideAndOpaque) {
    for (const bool isClosed : {false, true}) {
        const auto sequence = makeSequence(isClosed, true);
        test::expectSame(test::paintFigure(PointsSequenceDrawer(), sequence), bareLines(sequence));
        test::expectSame(test::paintFigure(PointsSequenceDrawer(), sequence, test::proportional),
                         bareLines(sequence, test::proportional));
    }
    EXPECT_NE(bareLines(makeSequence(false, true)).bytes, bareLines(makeSequence(true, true)).bytes);
}

TEST(PointsSequenceDrawer, FillsAClosedPathWithoutAMark) {
    const auto picture = test::paintFigure(PointsSequenceDrawer(), makeSequence(true, true));
    EXPECT_EQ(picture.at(static_cast<int>(test::stretchable.getVisualX(5)),
                         static_cast<int>(test::stretchable.getVisualY(0))),
              (std::vector<int>{255, 255, 255, 255}));
}

TEST(PointsSequenceDrawer, LeavesTheLastCornerOfAClosedPathWithoutAJoin) {
    const auto sequence = makeSequence(true, true);
    const auto joined = test::paintBare([&](cairo_t* cr) {
        for (const Zel::PointF& point : sequence.points)
            cairo_line_to(cr, test::stretchable.getVisualX(point.x), test::stretchable.getVisualY(point.y));
        cairo_close_path(cr);
        cairo_set_line_width(cr, 3);
        setColour(cr, 1);
        cairo_stroke(cr);
    });
    EXPECT_NE(test::paintFigure(PointsSequenceDrawer(), sequence).bytes, joined.bytes);
}

TEST(PointsSequenceDrawer, PaintsDotsAloneWithTheOpacityOfTheColour) {
    for (const bool isClosed : {false, true}) {
        const auto sequence = makeSequence(isClosed, false);
        test::expectSame(test::paintFigure(PointsSequenceDrawer(), sequence), bareDots(sequence));
    }
}

TEST(PointsSequenceDrawer, PaintsItsTextAtTheOrigin) {
    for (const bool hasLines : {false, true}) {
        const auto sequence = makeSequence(false, hasLines, "gjpqy");
        const auto expected = hasLines ? bareLines(sequence) : bareDots(sequence);
        test::expectSame(test::paintFigure(PointsSequenceDrawer(), sequence), expected);
        // From the base line upward most of a text at the origin is out of sight, hence the long letters.
        EXPECT_NE(expected.bytes,
                  test::paintFigure(PointsSequenceDrawer(), makeSequence(false, hasLines)).bytes);
    }
}

TEST(PointsSequenceDrawer, WithoutPointsPaintsItsTextAloneAtTheOrigin) {
    const auto textAlone = test::paintBare([](cairo_t* cr) {
        setColour(cr, 1);
        cairo_show_text(cr, "gjpqy");
    });
    ASSERT_GT(textAlone.countPainted(), 0);
    for (const bool isClosed : {false, true})
        for (const bool hasLines : {false, true}) {
            auto sequence = makeSequence(isClosed, hasLines, "gjpqy");
            sequence.points.clear();
            test::expectSame(test::paintFigure(PointsSequenceDrawer(), sequence), textAlone);
        }
}

TEST(PointsSequenceDrawer, DoesNotGoOnWhereAnotherTextEnded) {
    for (const bool isEmpty : {false, true}) {
        auto sequence = makeSequence(true, true, "gjpqy");
        if (isEmpty)
            sequence.points.clear();
        const auto withText = [&](bool isTextFirst) {
            return test::paint(test::canvasWidth, test::canvasHeight,
                               [&](const Cairo::RefPtr<Cairo::Context>& context) {
                                   const auto showText = [&] {
                                       context->set_source_rgb(0, 0, 0);
                                       context->move_to(130, 90);
                                       context->show_text("text");
                                   };
                                   PointsSequenceDrawer drawer;
                                   drawer.converter = &test::stretchable;
                                   if (isTextFirst)
                                       showText();
                                   drawer._onDraw(context, sequence);
                                   if (!isTextFirst)
                                       showText();
                               });
        };
        test::expectSame(withText(true), withText(false));
    }
}

TEST(PointsSequenceDrawer, NeedsTwoPointsForALine) {
    for (const bool isClosed : {false, true}) {
        auto sequence = makeSequence(isClosed, true);
        sequence.points.resize(1);
        EXPECT_EQ(test::paintFigure(PointsSequenceDrawer(), sequence).countPainted(), 0);
    }
}

TEST(PointsSequenceDrawer, LeavesTheContextUsableWhateverTheNumbers) {
    for (const float bad :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38f, -3e38f})
        for (const bool hasLines : {false, true}) {
            auto sequence = makeSequence(true, hasLines, "gjpqy");
            sequence.points[1].x = bad;
            sequence.points[2].y = bad;
            test::paintFigure(PointsSequenceDrawer(), sequence); // fails if the context is in an error
        }
}
