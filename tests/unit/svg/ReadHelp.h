// Short ways to read drawings from text in tests.
#pragma once

#include "easel/svg/Document.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

inline easel::drawing::Drawing readOk(const std::string& text) {
    auto result = easel::svg::readBytes(text, "test.svg");
    if (!result) {
        ADD_FAILURE() << result.error().message();
        return easel::drawing::Drawing::create(1, 1);
    }
    return std::move(*result);
}

// A file of 100 by 100 units with this content.
inline std::string svgFile(const std::string& content) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
           "width=\"100\" "
           "height=\"100\">" +
           content + "</svg>";
}

inline const CGradientData* recordOf(const easel::drawing::Drawing& drawing, std::size_t index = 0) {
    if (index >= drawing.size())
        return nullptr;
    const CGradient* const gradient = easel::drawing::gradientIn(drawing.object(index)->gradient);
    return gradient ? &gradient->GetGradientData() : nullptr;
}

// Gives the object a gradient as the tool does: a changed clone takes its place in one undo step.
inline void giveGradient(easel::drawing::Drawing& drawing, std::size_t index, const CGradientData& record) {
    easel::drawing::Object changed = *drawing.object(index);
    changed.setFillPattern(easel::drawing::FillPattern::SolidBlack);
    changed.setGradient(easel::drawing::ObjectGradient(new CGradient(record)));
    drawing.prepareUndo(3);
    drawing.erase(index);
    drawing.insert(index, sealed(std::move(changed)));
}
