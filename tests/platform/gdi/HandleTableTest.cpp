// Drawing handles: small numbers that survive a trip through a 32-bit integer, and a handle
// that has been freed is refused even when its slot serves a new object.

#include "platform/gdi/Bitmap.h"
#include "platform/gdi/Brush.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/GdiObject.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

template <class Handle> Handle ThroughInt32(Handle handle) {
    const auto narrow = std::int32_t(reinterpret_cast<std::uintptr_t>(handle));
    return reinterpret_cast<Handle>(std::uintptr_t(std::uint32_t(narrow)));
}

TEST(HandleTableTest, HandlesSurviveA32BitIntegerAndStaleOnesAreRefused) {
    HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = CreateBitmap(4, 3, 1, 32, nullptr);
    ASSERT_NE(dc, nullptr);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_GT(std::int32_t(reinterpret_cast<std::uintptr_t>(dc)), 0);

    HDC dcBack = ThroughInt32(dc);
    HBITMAP bitmapBack = ThroughInt32(bitmap);
    EXPECT_NE(SelectObject(dcBack, bitmapBack), nullptr);
    BITMAP info{};
    ASSERT_EQ(GetObject(bitmapBack, sizeof info, &info), int(sizeof info));
    EXPECT_EQ(info.bmWidth, 4);
    // A context's handle is no drawing object, and the other way round.
    EXPECT_EQ(GetObjectType(reinterpret_cast<HGDIOBJ>(dc)), 0u);
    EXPECT_EQ(SetBkColor(reinterpret_cast<HDC>(bitmap), RGB(1, 2, 3)), CLR_INVALID);

    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_TRUE(DeleteObject(bitmap));
    // The freed slots serve the next objects under new handles.
    HBRUSH brush = CreateSolidBrush(RGB(9, 9, 9));
    HDC next = CreateCompatibleDC(nullptr);
    EXPECT_NE(reinterpret_cast<void*>(brush), reinterpret_cast<void*>(bitmap));
    EXPECT_NE(next, dc);
    EXPECT_EQ(GetObjectType(bitmap), 0u);
    EXPECT_FALSE(DeleteDC(dc));
    EXPECT_EQ(GetObjectType(brush), OBJ_BRUSH);
    DeleteObject(brush);
    DeleteDC(next);
}

} // namespace
