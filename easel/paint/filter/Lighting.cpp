// feDiffuseLighting and feSpecularLighting (SVG 1.1, 15.14 and 15.22) with the lights of 15.8.
#include "easel/paint/filter/Lighting.h"

#include "easel/drawing/SrgbCurve.h"
#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

#include <cmath>
#include <numbers>

namespace easel::paint {

namespace {

using drawing::LightingEffect;

struct Vector {
    float x = 0, y = 0, z = 0;
};

float dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector unitVector(const Vector& v) {
    const float length = std::sqrt(dot(v, v));
    return length > 0 ? Vector{v.x / length, v.y / length, v.z / length} : Vector{};
}

float radians(double degrees) {
    return static_cast<float>(degrees * std::numbers::pi / 180);
}

// The direction of the light from a point, and how strong it is there.
struct Ray {
    Vector direction;
    float strength = 1;
};

// A light whose places are in pixels.
class Lamp {
  public:
    Lamp(const LightingEffect& effect, const FilterSpace& space) {
        const auto placed = [&space](const drawing::LightPlace& place) {
            const drawing::Point p = space.toPixels({place.x, place.y});
            const drawing::Point scale = space.toPixels.direction({1, 1});
            const double depth = std::hypot(scale.x, scale.y) / std::numbers::sqrt2;
            return Vector{static_cast<float>(p.x), static_cast<float>(p.y),
                          static_cast<float>(place.z * depth)};
        };
        if (const auto* distant = std::get_if<drawing::DistantLight>(&effect.light)) {
            const float azimuth = radians(distant->azimuth);
            const float elevation = radians(distant->elevation);
            everywhere_ = {std::cos(azimuth) * std::cos(elevation), std::sin(azimuth) * std::cos(elevation),
                           std::sin(elevation)};
            isFar_ = true;
        } else if (const auto* point = std::get_if<drawing::PointLight>(&effect.light)) {
            place_ = placed(point->place);
        } else {
            const auto& spot = std::get<drawing::SpotLight>(effect.light);
            place_ = placed(spot.place);
            const Vector target = placed(spot.target);
            axis_ = unitVector({target.x - place_.x, target.y - place_.y, target.z - place_.z});
            isSpot_ = true;
            focus_ = static_cast<float>(spot.focus);
            edge_ = std::cos(radians(std::min(std::abs(spot.cone), 180.0)));
        }
    }

    Ray at(const Vector& point) const {
        if (isFar_)
            return {everywhere_};
        Ray ray{unitVector({place_.x - point.x, place_.y - point.y, place_.z - point.z})};
        if (isSpot_) {
            const float along = -dot(ray.direction, axis_);
            ray.strength = along > 0 && along >= edge_ ? std::pow(along, focus_) : 0;
        }
        return ray;
    }

  private:
    bool isFar_ = false;
    bool isSpot_ = false;
    Vector everywhere_; // the direction of a far light
    Vector place_;
    Vector axis_;
    float focus_ = 1;
    float edge_ = -1; // the cosine of the cone's angle
};

// Heights and their slopes, taken from pixels so far apart.
class Heights {
  public:
    Heights(const Surface& picture, double scale, PixelPoint step)
        : picture_(picture), scale_(static_cast<float>(scale / 255)), step_(step) {}

    float at(int x, int y) const { return static_cast<float>(alphaLevel(picture_.row(y)[x])) * scale_; }

    // Twice the slope, by the weights of Sobel. At an edge, only what is inside counts.
    Vector normal(int x, int y) const {
        const Range across(x, step_.h, picture_.width());
        const Range down(y, step_.v, picture_.height());
        const float slopeX = slope(down, across, [&](int along, int beside) { return at(along, beside); });
        const float slopeY = slope(across, down, [&](int along, int beside) { return at(beside, along); });
        return unitVector({-slopeX, -slopeY, 1});
    }

  private:
    struct Range {
        Range(int middle, int step, int size)
            : before(middle >= step ? middle - step : middle), at(middle),
              after(middle + step < size ? middle + step : middle), steps((at - before + after - at) / step) {
        }
        int before, at, after;
        int steps; // between the outer ones: 0, 1 or 2
    };

    template <class Height> static float slope(const Range& beside, const Range& along, Height height) {
        if (along.steps == 0)
            return 0;
        const auto rise = [&](int place) { return height(along.after, place) - height(along.before, place); };
        float sum = 2 * rise(beside.at);
        float weight = 2;
        for (const int place : {beside.before, beside.after})
            if (place != beside.at) {
                sum += rise(place);
                weight += 1;
            }
        return 2 * sum / (weight * static_cast<float>(along.steps));
    }

    const Surface& picture_;
    float scale_;
    PixelPoint step_;
};

// The pixel of light of this strength: opaque where light is diffuse, else as opaque as the light is strong.
std::uint32_t litPixel(LightingEffect::Kind kind, float strength, const Shade& color) {
    const float red = unit(strength * color.red);
    const float green = unit(strength * color.green);
    const float blue = unit(strength * color.blue);
    const float alpha = kind == LightingEffect::Kind::Diffuse ? 1 : std::max({red, green, blue});
    return levelOf(alpha) << 24 | levelOf(red) << 16 | levelOf(green) << 8 | levelOf(blue);
}

Shade lightColor(const drawing::Rgb16& color, bool linearLight) {
    const auto channel = [linearLight](std::uint16_t value) {
        const double srgb = value / 65535.0;
        return static_cast<float>(linearLight ? drawing::linearLightOf(srgb) : srgb);
    };
    return {channel(color.red), channel(color.green), channel(color.blue), 1};
}

} // namespace

Surface lit(const LightingEffect& effect, bool linearLight, const Surface& picture,
            const FilterSpace& space) {
    const Lamp lamp(effect, space);
    const Heights heights(picture, effect.surfaceScale, space.wholeSteps(effect.unit));
    const Shade color = lightColor(effect.color, linearLight);
    const auto constant = static_cast<float>(effect.constant);
    const auto exponent = static_cast<float>(effect.exponent);
    Surface result(picture.width(), picture.height());
    forEachRow(picture, [&](int y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Vector point{static_cast<float>(x), static_cast<float>(y), heights.at(x, y)};
            const Ray ray = lamp.at(point);
            const Vector normal = heights.normal(x, y);
            float strength = 0;
            if (effect.kind == LightingEffect::Kind::Diffuse) {
                strength = dot(normal, ray.direction);
            } else {
                const Vector between = unitVector({ray.direction.x, ray.direction.y, ray.direction.z + 1});
                strength = std::pow(std::max(dot(normal, between), 0.0F), exponent);
            }
            result.row(y)[x] = litPixel(effect.kind, constant * strength * ray.strength, color);
        }
    });
    return result;
}

} // namespace easel::paint
