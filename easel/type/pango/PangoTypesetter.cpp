#include "easel/type/pango/PangoTypesetter.h"

#include "easel/memory/LibraryCall.h"
#include "easel/type/Append.h"
#include "easel/type/pango/FontInBytes.h"
#include "easel/type/pango/FontMeasures.h"

#include <pango/pangofc-fontmap.h>
#include <pango/pangoft2.h>

#include <algorithm>
#include <utility>

namespace easel::type {

using drawing::Affine;
using drawing::Path;
using drawing::Point;

namespace {

// Text is shaped at one large size, in pixels, whatever size it is drawn at: its measures are in proportion,
// and far from any rounding.
constexpr int kEm = 1024;
constexpr double kUnitsPerEm = static_cast<double>(kEm) * PANGO_SCALE;

struct FreeDescription {
    void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
};
using Description = std::unique_ptr<PangoFontDescription, FreeDescription>;

struct UnrefAttributes {
    void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
};
using Attributes = std::unique_ptr<PangoAttrList, UnrefAttributes>;

struct FreeGlyphs {
    void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
};

struct FreeItems {
    void operator()(GList* items) const {
        g_list_free_full(items, [](gpointer item) { pango_item_free(static_cast<PangoItem*>(item)); });
    }
};
using Items = std::unique_ptr<GList, FreeItems>;

Description descriptionOf(const Font& font) {
    constexpr PangoStyle kStyles[] = {PANGO_STYLE_NORMAL, PANGO_STYLE_ITALIC, PANGO_STYLE_OBLIQUE};
    Description description(pango_font_description_new());
    PangoFontDescription* const own = description.get();
    pango_font_description_set_family(own, font.families.c_str());
    pango_font_description_set_weight(own, static_cast<PangoWeight>(font.weight));
    pango_font_description_set_style(own, kStyles[static_cast<std::size_t>(font.slant)]);
    pango_font_description_set_stretch(own, static_cast<PangoStretch>(font.stretch));
    pango_font_description_set_variant(own, font.smallCaps ? PANGO_VARIANT_SMALL_CAPS : PANGO_VARIANT_NORMAL);
    if (!font.variations.empty())
        pango_font_description_set_variations(own, font.variations.c_str());
    pango_font_description_set_absolute_size(own, kUnitsPerEm);
    return description;
}

PangoLanguage* languageOf(const Font& font) {
    return pango_language_from_string(font.language.empty() ? "en" : font.language.c_str());
}

Attributes attributesOf(const Line& line) {
    Attributes list(pango_attr_list_new());
    std::size_t begin = 0;
    for (const FontRun& run : line.runs) {
        const auto add = [&](PangoAttribute* attribute) {
            attribute->start_index = static_cast<guint>(begin);
            attribute->end_index = static_cast<guint>(run.end);
            pango_attr_list_insert(list.get(), attribute);
        };
        add(pango_attr_font_desc_new(descriptionOf(*run.font).get()));
        add(pango_attr_language_new(languageOf(*run.font)));
        if (!run.font->ligatures)
            add(pango_attr_font_features_new("liga=0, clig=0, dlig=0"));
        begin = run.end;
    }
    return list;
}

// No fitting to pixels: outlines and measures are to be those of any size.
void forbidHinting(FcPattern* pattern, gpointer) {
    FcPatternDel(pattern, FC_HINTING);
    FcPatternAddBool(pattern, FC_HINTING, FcFalse);
}

void setDirection(PangoContext* context, const Line& line) {
    constexpr PangoGravityHint kHints[] = {PANGO_GRAVITY_HINT_NATURAL, PANGO_GRAVITY_HINT_STRONG,
                                           PANGO_GRAVITY_HINT_NATURAL};
    const bool mayStand = line.vertical && line.upright != Upright::None;
    pango_context_set_base_gravity(context, mayStand ? PANGO_GRAVITY_EAST : PANGO_GRAVITY_SOUTH);
    pango_context_set_gravity_hint(context, kHints[static_cast<std::size_t>(line.upright)]);
}

// The bytes where letters begin, marks and the like not counted.
std::vector<int> letterBegins(const std::string& text) {
    const auto count =
        static_cast<std::size_t>(g_utf8_strlen(text.c_str(), static_cast<gssize>(text.size())));
    std::vector<PangoLogAttr> attributes(count + 1);
    pango_get_log_attrs(text.c_str(), static_cast<int>(text.size()), -1, pango_language_from_string("en"),
                        attributes.data(), static_cast<int>(attributes.size()));
    std::vector<int> begins;
    const char* at = text.c_str();
    for (const PangoLogAttr& attribute : attributes) {
        if (attribute.is_cursor_position != 0)
            begins.push_back(static_cast<int>(at - text.c_str()));
        at = g_utf8_next_char(at);
    }
    return begins;
}

// Lets marks be of the cluster of their letter, and tells where in the item clusters begin, with its end.
std::vector<int> joinClusters(PangoGlyphString& glyphs, const PangoItem& item,
                              const std::vector<int>& letters) {
    std::vector<int> begins{item.length};
    for (int i = 0; i < glyphs.num_glyphs; ++i) {
        int& cluster = glyphs.log_clusters[i];
        const auto after = std::upper_bound(letters.begin(), letters.end(), item.offset + cluster);
        cluster = after == letters.begin() ? 0 : std::max(*(after - 1) - item.offset, 0);
        begins.push_back(cluster);
    }
    std::sort(begins.begin(), begins.end());
    begins.erase(std::unique(begins.begin(), begins.end()), begins.end());
    return begins;
}

constexpr std::size_t kShortLine = 32;
constexpr std::size_t kMostShortLines = 4096;

// The same for lines that are shaped alike. The line has one font.
std::string keyOf(const Line& line) {
    const Font& font = *line.runs.front().font;
    const int flags[] = {font.weight,
                         static_cast<int>(font.slant),
                         static_cast<int>(font.stretch),
                         font.smallCaps,
                         font.ligatures,
                         line.rightToLeft,
                         line.vertical,
                         static_cast<int>(line.upright)};
    std::string key = line.text + '\n' + font.families + '\n' + font.language + '\n' + font.variations;
    for (const int flag : flags)
        key += '\n' + std::to_string(flag);
    return key;
}

} // namespace

PangoTypesetter::PangoTypesetter() : fonts_(pango_ft2_font_map_new()), outlines_(kUnitsPerEm) {
    pango_fc_font_map_set_default_substitute(PANGO_FC_FONT_MAP(fonts_.get()), forbidHinting, nullptr,
                                             nullptr);
    context_.reset(pango_font_map_create_context(fonts_.get()));
    pango_context_set_round_glyph_positions(context_.get(), FALSE);
    pango_context_set_language(context_.get(), pango_language_from_string("en"));
}

std::vector<Cluster> PangoTypesetter::shape(const Line& line) {
    const std::lock_guard lock(mutex_);
    if (line.text.empty())
        return {};
    if (line.text.size() > kShortLine || line.runs.size() > 1)
        return shapeNew(line);
    std::string key = keyOf(line);
    if (const auto known = shortLines_.find(key); known != shortLines_.end())
        return known->second;
    if (shortLines_.size() >= kMostShortLines)
        shortLines_.clear();
    return shortLines_.emplace(std::move(key), shapeNew(line)).first->second;
}

// Nothing is kept of what may lack something.
std::vector<Cluster> PangoTypesetter::shapeNew(const Line& line) {
    try {
        return memory::complete([&] { return clustersOf(line); });
    } catch (const std::bad_alloc&) {
        outlines_.forget();
        throw;
    }
}

std::vector<Cluster> PangoTypesetter::clustersOf(const Line& line) {
    std::vector<Cluster> clusters;
    setDirection(context_.get(), line);
    const Attributes attributes = attributesOf(line);
    const Items logical(pango_itemize_with_base_dir(
        context_.get(), line.rightToLeft ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR, line.text.c_str(), 0,
        static_cast<int>(line.text.size()), attributes.get(), nullptr));
    const std::vector<int> letters = letterBegins(line.text);
    // The other list has the same items in another order.
    GList* const visual = pango_reorder_items(logical.get());
    for (const GList* place = visual; place; place = place->next)
        addClusters(*static_cast<PangoItem*>(place->data), line, letters, clusters);
    g_list_free(visual);
    return clusters;
}

void PangoTypesetter::addClusters(PangoItem& item, const Line& line, const std::vector<int>& letters,
                                  std::vector<Cluster>& clusters) {
    if (!item.analysis.font)
        return;
    const std::unique_ptr<PangoGlyphString, FreeGlyphs> glyphs(pango_glyph_string_new());
    pango_shape_item(&item, line.text.c_str(), static_cast<int>(line.text.size()), nullptr, glyphs.get(),
                     PANGO_SHAPE_NONE);
    const std::vector<int> begins = joinClusters(*glyphs, item, letters);
    const bool upright = line.vertical && PANGO_GRAVITY_IS_VERTICAL(item.analysis.gravity);
    const int count = glyphs->num_glyphs;
    for (int i = 0; i < count;) {
        const int begin = glyphs->log_clusters[i];
        int next = i;
        int advance = 0;
        for (; next < count && glyphs->log_clusters[next] == begin; ++next)
            advance += glyphs->glyphs[next].geometry.width;
        Cluster cluster;
        cluster.begin = static_cast<std::size_t>(item.offset) + static_cast<std::size_t>(begin);
        cluster.end = static_cast<std::size_t>(item.offset) +
                      static_cast<std::size_t>(*std::upper_bound(begins.begin(), begins.end(), begin));
        cluster.advance = advance / kUnitsPerEm;
        cluster.rightToLeft = item.analysis.level % 2 != 0;
        cluster.upright = upright;
        cluster.face = outlines_.face(item.analysis.font);
        draw(cluster, glyphs->glyphs + i, glyphs->glyphs + next, item.analysis.font);
        clusters.push_back(std::move(cluster));
        i = next;
    }
}

void PangoTypesetter::draw(Cluster& cluster, const PangoGlyphInfo* begin, const PangoGlyphInfo* end,
                           PangoFont* font) {
    Path& path = cluster.outline;
    double pen = 0;
    for (const PangoGlyphInfo* glyph = begin; glyph != end; ++glyph) {
        const PangoGlyphGeometry& geometry = glyph->geometry;
        Point at{(pen + geometry.x_offset) / kUnitsPerEm, geometry.y_offset / kUnitsPerEm};
        if (cluster.upright)
            at = {-at.y, at.x};
        pen += geometry.width;
        if (glyph->glyph == PANGO_GLYPH_EMPTY)
            continue;
        // A letter that no font has is shown as the font's sign for that.
        const bool missing = (glyph->glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0;
        const std::uint32_t number = missing ? 0 : glyph->glyph;
        cluster.glyphs.push_back({number, static_cast<float>(at.x), static_cast<float>(at.y)});
        const Path outline = outlines_.of(font, number);
        if (path.empty() && at == Point{})
            path = outline;
        else
            append(path, outline, Affine::translation(at.x, at.y));
    }
}

FontMetrics PangoTypesetter::metrics(const Font& font) {
    const std::lock_guard lock(mutex_);
    const Held<PangoFont> own(
        pango_font_map_load_font(fonts_.get(), context_.get(), descriptionOf(font).get()));
    hb_font_t* const fontOfMetrics = own ? pango_font_get_hb_font(own.get()) : nullptr;
    return fontOfMetrics ? metricsOf(fontOfMetrics, kUnitsPerEm) : FontMetrics();
}

std::shared_ptr<LoadedFont> PangoTypesetter::load(std::string&& bytes) {
    return loadFont(std::move(bytes));
}

bool PangoTypesetter::has(const std::string& family) {
    if (isGenericFamily(family))
        return true;
    const std::lock_guard lock(mutex_);
    return pango_font_map_get_family(fonts_.get(), family.c_str()) != nullptr;
}

} // namespace easel::type

extern "C" [[gnu::visibility("default")]] easel::type::Typesetter* easelTypesetter() {
    // Never destroyed, since nobody knows which thread still sets text when the program ends.
    static auto* const kTypesetter = new easel::type::PangoTypesetter;
    return kTypesetter;
}
