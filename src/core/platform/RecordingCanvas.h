#pragma once

#include "Canvas.h"
#include "DrawOp.h"

#include <string>
#include <vector>

namespace quillet {

// A canvas that draws nothing and remembers every operation, for tests and for measuring drawings.
// Text is measured with a fixed advance so that layouts are predictable.
class RecordingCanvas : public Canvas {
public:
    RecordingCanvas(double widthTwips, double heightTwips);

    const std::vector<DrawOp>& ops() const { return m_ops; }
    // What was drawn before keepAsBackground(): the picture clear() goes back to. Those operations
    // leave ops().
    const std::vector<DrawOp>& backgroundOps() const { return m_background; }
    // The operations of one kind, in drawing order.
    std::vector<DrawOp> ops(DrawOp::Kind kind) const;
    void forget() { m_ops.clear(); }

protected:
    void doClear() override;
    void doKeepAsBackground() override;
    void doLine(double x1, double y1, double x2, double y2, Rgb colour) override;
    void doBox(double x1, double y1, double x2, double y2, Rgb outline) override;
    void doCircle(double cx, double cy, double radius, Rgb outline) override;
    void doFloodFill(int px, int py) override;
    void doText(double x, double y, std::string_view text) override;
    double textWidthPixels(std::string_view text) override;
    double textHeightPixels(std::string_view text) override;

private:
    DrawOp& record(DrawOp::Kind kind);

    std::vector<DrawOp> m_ops;
    std::vector<DrawOp> m_background;
};

} // namespace quillet
