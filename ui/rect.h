// Rectangles in pixels: whole ones for what stands on the screen, fractions for what is measured.
#pragma once

namespace keplin {

template <typename T>
struct Size {
    T width{};
    T height{};
    friend bool operator==(const Size&, const Size&) = default;
};

// From the left and top edge on; the right and bottom edge belong to it no more.
template <typename T>
struct Rect {
    T left{};
    T top{};
    T width{};
    T height{};

    [[nodiscard]] T Right() const { return left + width; }
    [[nodiscard]] T Bottom() const { return top + height; }

    [[nodiscard]] bool Contains(const Rect& other) const {
        return left <= other.left && other.Right() <= Right() && top <= other.top &&
               other.Bottom() <= Bottom();
    }
    // They share more than an edge.
    [[nodiscard]] bool Intersects(const Rect& other) const {
        return left < other.Right() && other.left < Right() && top < other.Bottom() &&
               other.top < Bottom();
    }

    [[nodiscard]] Rect Moved(T right, T down) const {
        return {left + right, top + down, width, height};
    }
    // Smaller by so much at the left and the right, and at the top and the bottom.
    [[nodiscard]] Rect Inset(T beside, T above) const {
        return {left + beside, top + above, width - 2 * beside, height - 2 * above};
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

using PixelSize = Size<int>;
using PixelRect = Rect<int>;

inline Rect<double> Exactly(const PixelRect& rect) {
    return {double(rect.left), double(rect.top), double(rect.width), double(rect.height)};
}

}  // namespace keplin
