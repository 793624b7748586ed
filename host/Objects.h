// Objects of a drawing: picking, copying, replacing, selecting, and what an object is filled with.
#pragma once

#include "host/Geometry.h"
#include "host/Gradient.h"
#include "host/SharedResource.h"

#include <array>
#include <cstdint>
#include <memory>

#pragma GCC visibility push(default)

class DWindow;

/// A fill pattern that drawing objects share. Its virtual table is the host's.
class CPatRecord final : public CHashBase {
  public:
    /// A pattern of 8 rows of 8 pixels, a set bit being the foreground.
    explicit CPatRecord(std::array<std::uint8_t, 8> const& rows) : rows_(rows) {}
    ~CPatRecord() override;

    [[nodiscard]] std::uint32_t HashID() const override;
    [[nodiscard]] std::array<std::uint8_t, 8> const& Rows() const { return rows_; }

  private:
    std::array<std::uint8_t, 8> rows_;
};

/// The solid black fill pattern.
[[nodiscard]] SharedResourcePtr<CPatRecord> kBlackPat();

/// State of an object; the host's.
struct HostObject;

/// An object of a drawing, or a temporary one. A value that is cheap to copy: copies stand for the same
/// object, and CloneItem makes an independent one.
class TessObject {
  public:
    /// An empty object, of kind 0.
    TessObject() = default;
    explicit TessObject(std::shared_ptr<HostObject> state) : state_(std::move(state)) {}

    /// The object's kind, 0 for an empty object. Kinds are the host's numbers, 1 to 255.
    [[nodiscard]] short WhatObject() const;
    /// The smallest rectangle around the object's outline itself, in drawing coordinates, stroke not counted.
    [[nodiscard]] TRect<double> BBox() const;
    /// The object's gradient; an empty pointer if it has none.
    [[nodiscard]] SharedResourcePtr<CGradient> GetGradient() const;
    void SetGradient(SharedResourcePtr<CGradient> const& gradient);
    void SetFillPattern(SharedResourcePtr<CPatRecord> const& pattern);

    /// The state, null for an empty object; for the host's own use. The reference is to a member: copy the
    /// pointer where this object is a temporary, as the result of CTessObjList's operator[] is.
    [[nodiscard]] std::shared_ptr<HostObject> const& State() const { return state_; }

  private:
    std::shared_ptr<HostObject> state_;
};

/// State of a list of objects; the host's.
struct HostObjectList;

/// The objects of a drawing, back to front, by index from 0. A value that is cheap to copy: copies stand for
/// the same list.
class CTessObjList {
  public:
    /// A list of no drawing, without objects.
    CTessObjList() = default;
    explicit CTessObjList(std::shared_ptr<HostObjectList> state) : state_(std::move(state)) {}

    /// The object at an index; an empty object if there is none.
    [[nodiscard]] TessObject operator[](long index) const;

    /// The state, null for a list of no drawing; for the host's own use. The reference is to a member, as
    /// that of TessObject::State() is.
    [[nodiscard]] std::shared_ptr<HostObjectList> const& State() const { return state_; }

  private:
    std::shared_ptr<HostObjectList> state_;
};

/// Which object kinds a pick may return: one bit for each of the kinds 0 to 255, kind 0 being the lowest bit
/// of the first word.
struct SelDescrimT {
    std::array<std::uint32_t, 8> kinds{};

    friend bool operator==(SelDescrimT const&, SelDescrimT const&) = default;
};

/// The filter that admits no kind.
extern SelDescrimT const descrimAllOff;
/// Reads and replaces the pick filter in force, which admits every kind until a plug-in changes it.
void GetSelDescrim(SelDescrimT& filter);
void SetSelDescrim(SelDescrimT filter);
/// Admits one more kind. A number that no kind can have changes nothing.
void SetOneSelDescrim(short kind);

/// True if an object that the filter admits lies under the point (drawing coordinates; inside the object or
/// as near to its outline as the host allows); `list` and `index` then tell which, the front-most if there
/// are several. Otherwise both are left as they were.
[[nodiscard]] bool PickObj(DWindow* window, TPoint<double> where, long& index, CTessObjList& list);
/// Makes `clone` a full, independent copy of the object that belongs to no drawing; empty if the object is.
void CloneItem(TessObject const* object, TessObject& clone);
/// Removes the object at the index from its drawing, recording it for undo.
void DeleteUObj(long index, CTessObjList const& list);
/// Puts an object into the drawing at the index, recording it for undo. Later objects move up by one.
void InsertObj(TessObject const& object, long index, CTessObjList list);
/// Adds the object at the index to the selection.
void SelObject(long index, CTessObjList list);

/// Makes `polygon` a temporary polygon object with the outline of `object`, at most `tolerance` drawing units
/// off it. The polygon's kind is 0 if that cannot be done. The caller gives it back with RecoverObject.
void ObjToPoly(TessObject const* object, TessObject& polygon, double tolerance);
/// Releases what ObjToPoly made; the object is empty afterwards.
void RecoverObject(TessObject& polygon);

#pragma GCC visibility pop
