#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <set>
#include <string>
#include <vector>

/// What stands in a window.
struct WindowPicture {
    LONG width = 0;
    LONG height = 0;
    /// From the lowest line up.
    std::vector<COLORREF> points;

    bool operator==(const WindowPicture&) const = default;
    size_t Colours() const { return std::set<COLORREF>(points.begin(), points.end()).size(); }

    static WindowPicture Of(HWND window)
    {
        RECT inner = {};
        ::GetClientRect(window, &inner);
        WindowPicture picture{inner.right, inner.bottom,
                              std::vector<COLORREF>(size_t(inner.right) * size_t(inner.bottom))};
        HDC screen = ::GetDC(window);
        HDC memory = ::CreateCompatibleDC(screen);
        const BITMAPINFO info = {picture.Header(), {}};
        void* bits = nullptr;
        HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        ::SelectObject(memory, bitmap);
        ::BitBlt(memory, 0, 0, picture.width, picture.height, screen, 0, 0, SRCCOPY);
        ::GdiFlush();
        const auto* first = static_cast<const COLORREF*>(bits);
        if (first)
            std::copy_n(first, picture.points.size(), picture.points.begin());
        ::DeleteDC(memory);
        ::DeleteObject(bitmap);
        ::ReleaseDC(window, screen);
        return picture;
    }

    bool Save(const std::string& file) const
    {
        const auto size = static_cast<DWORD>(points.size() * sizeof(COLORREF));
        const BITMAPINFOHEADER header = Header();
        constexpr DWORD begin = sizeof(BITMAPFILEHEADER) + sizeof header;
        const BITMAPFILEHEADER mark = {0x4D42, begin + size, 0, 0, begin};
        std::FILE* out = std::fopen(file.c_str(), "wb");
        if (!out)
            return false;
        const bool written = std::fwrite(&mark, sizeof mark, 1, out) == 1
            && std::fwrite(&header, sizeof header, 1, out) == 1
            && std::fwrite(points.data(), size, 1, out) == 1;
        return std::fclose(out) == 0 && written;
    }

private:
    BITMAPINFOHEADER Header() const
    {
        return {sizeof(BITMAPINFOHEADER), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    }
};
