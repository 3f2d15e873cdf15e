// EPlot's typed access to the chart's numbered properties: the thin layer an application uses
// for any property it knows by number. Element reads check the index against the array's size;
// whole reads size the caller's vector from the chart. `unsigned long` is wider than the chart's
// 32-bit integers here, so it goes through 32-bit buffers.

#include "plot/Plot.h"

#include "chart/ChartApi.h"

#include <cstdint>
#include <cstring>

namespace {

constexpr size_t kStringProperty = 1024;

// The array's size in bytes, 0 when the chart has none.
int ByteSize(HWND chart, int p) {
    return std::max(ChartGetArray(chart, p, nullptr), 0);
}

template <class T> void ReadAll(HWND chart, int p, std::vector<T>& v) {
    v.clear();
    v.resize(size_t(ByteSize(chart, p)) / sizeof(T));
    if (!v.empty())
        ChartGetArray(chart, p, v.data());
}

std::vector<std::int32_t> ReadInts(HWND chart, int p) {
    std::vector<std::int32_t> ints;
    ReadAll(chart, p, ints);
    return ints;
}

// One scalar read through a buffer of the array's size, so that a longer array cannot
// overrun the caller's variable.
template <class T> void ReadScalar(HWND chart, int p, T& v) {
    std::vector<std::uint8_t> bytes(std::max<size_t>(size_t(ByteSize(chart, p)), sizeof(T)));
    if (ChartGetArray(chart, p, bytes.data()) > 0)
        std::memcpy(&v, bytes.data(), sizeof(T));
}

} // namespace

void EPlot::SetProperty(int p, unsigned char v) {
    ChartSetInt(m_hwnd, p, v);
}
void EPlot::SetProperty(int p, int v) {
    ChartSetInt(m_hwnd, p, v);
}
void EPlot::SetProperty(int p, unsigned long v) {
    ChartSetInt(m_hwnd, p, int(v));
}
void EPlot::SetProperty(int p, double v) {
    ChartSetArray(m_hwnd, p, &v, 1);
}
void EPlot::SetProperty(int p, MUcolor v) {
    const std::int32_t colour = std::int32_t(COLORREF(v));
    ChartSetArray(m_hwnd, p, &colour, 1);
}
void EPlot::SetProperty(int p, zvk::CStdStr<char> v) {
    if (v.size() < kStringProperty)
        v.resize(kStringProperty, '\0');
    ChartSetString(m_hwnd, p, v.c_str());
}
void EPlot::SetProperty(int p, int i, double v) {
    ChartSetElement(m_hwnd, p, i, &v);
}
void EPlot::SetProperty(int p, int i, int v) {
    ChartSetElement(m_hwnd, p, i, &v);
}
void EPlot::SetProperty(int p, int i, unsigned long v) {
    if (i < 0 || i >= ByteSize(m_hwnd, p) / 4)
        return;
    const std::uint32_t value = std::uint32_t(v);
    ChartSetElement(m_hwnd, p, i, &value);
}
void EPlot::SetProperty(int p, int i, MUcolor v) {
    const std::int32_t colour = std::int32_t(COLORREF(v));
    ChartSetElement(m_hwnd, p, i, &colour);
}
void EPlot::SetProperty(int p, int i, zvk::CStdStr<char> v) {
    // This form hands the chart the address of the pointer to the copy, not the copy itself;
    // SetCurveName passes the text. Applications rely on each as it is.
    std::vector<char> buffer(v.begin(), v.end());
    buffer.push_back('\0');
    const char* text = buffer.data();
    ChartSetElement(m_hwnd, p, i, &text);
}
void EPlot::SetProperty(int p, std::vector<double>& v) {
    ChartSetArray(m_hwnd, p, v.data(), int(v.size()));
}
void EPlot::SetProperty(int p, std::vector<int>& v) {
    ChartSetArray(m_hwnd, p, v.data(), int(v.size()));
}
void EPlot::SetProperty(int p, std::vector<unsigned long>& v) {
    std::vector<std::uint32_t> narrow(v.begin(), v.end());
    ChartSetArray(m_hwnd, p, narrow.data(), int(narrow.size()));
}
void EPlot::SetProperty(int p, std::vector<MUcolor>& v) {
    for (size_t i = 0; i < v.size(); ++i) {
        const std::int32_t colour = std::int32_t(COLORREF(v[i]));
        ChartSetElement(m_hwnd, p, int(i), &colour);
    }
}
void EPlot::SetProperty(int p, std::vector<zvk::CStdStr<char>>& v) {
    zvk::CStdStr<char> joined;
    for (const auto& text : v)
        joined += text + "\t";
    ChartSetArray(m_hwnd, p, joined.c_str(), int(v.size()));
}
void EPlot::ClearProperty(int p) {
    ChartSetArray(m_hwnd, p, nullptr, 0);
}

void EPlot::GetProperty(int p, int& v) {
    v = ChartGetInt(m_hwnd, p);
}
void EPlot::GetProperty(int p, unsigned long& v) {
    v = unsigned(ChartGetInt(m_hwnd, p));
}
void EPlot::GetProperty(int p, unsigned char& v) {
    v = ChartGetInt(m_hwnd, p) != 0 ? 1 : 0;
}
void EPlot::GetProperty(int p, double& v) {
    ReadScalar(m_hwnd, p, v);
}
void EPlot::GetProperty(int p, MUcolor& v) {
    ReadScalar(m_hwnd, p, v);
}
void EPlot::GetProperty(int p, zvk::CStdStr<char>& v) {
    if (v.size() < kStringProperty)
        v.resize(kStringProperty, '\0');
    ChartGetString(m_hwnd, p, v.data());
}
void EPlot::GetProperty(int p, int i, double& v) {
    if (i >= 0 && i < ByteSize(m_hwnd, p) / 8)
        ChartGetElement(m_hwnd, p, i, &v);
}
void EPlot::GetProperty(int p, int i, int& v) {
    if (i >= 0 && i < ByteSize(m_hwnd, p) / 4)
        ChartGetElement(m_hwnd, p, i, &v);
}
void EPlot::GetProperty(int p, int i, unsigned long& v) {
    std::uint32_t value = 0;
    if (i >= 0 && i < ByteSize(m_hwnd, p) / 4 && ChartGetElement(m_hwnd, p, i, &value))
        v = value;
}
void EPlot::GetProperty(int p, int i, MUcolor& v) {
    if (i >= 0 && i < ByteSize(m_hwnd, p) / 4)
        ChartGetElement(m_hwnd, p, i, &v);
}
void EPlot::GetProperty(int p, int i, zvk::CStdStr<char>& v) {
    // The whole array's size bounds any one element; a zero byte more for safety.
    std::vector<char> buffer(size_t(ByteSize(m_hwnd, p)) + 1, '\0');
    if (buffer.size() > 1 && ChartGetElement(m_hwnd, p, i, buffer.data()))
        v = buffer.data();
}
void EPlot::GetProperty(int p, std::vector<double>& v) {
    ReadAll(m_hwnd, p, v);
}
void EPlot::GetProperty(int p, std::vector<int>& v) {
    ReadAll(m_hwnd, p, v);
}
void EPlot::GetProperty(int p, std::vector<unsigned long>& v) {
    const std::vector<std::int32_t> ints = ReadInts(m_hwnd, p);
    v.assign(ints.size(), 0);
    for (size_t k = 0; k < ints.size(); ++k)
        v[k] = std::uint32_t(ints[k]);
}
void EPlot::GetProperty(int p, std::vector<MUcolor>& v) {
    ReadAll(m_hwnd, p, v);
}
void EPlot::GetProperty(int p, std::vector<zvk::CStdStr<char>>& v) {
    // The chart gives text arrays in 16-bit characters, each item ended by a tab; only the
    // low byte of each character is kept.
    v.clear();
    const int characters = ChartGetArray(m_hwnd, p, nullptr);
    if (characters <= 0)
        return;
    std::vector<std::uint16_t> wide(static_cast<size_t>(characters));
    if (ChartGetArray(m_hwnd, p, wide.data()) == -1)
        return;
    zvk::CStdStr<char> text;
    for (std::uint16_t c : wide)
        text += char(c & 0xFF);
    text.erase(text.find_last_not_of(' ') + 1);
    while (!text.empty()) {
        const size_t tab = text.find('\t');
        if (tab == std::string::npos)
            break; // text after the last tab is not an item
        v.push_back(text.substr(0, tab));
        text.erase(0, tab + 1);
        text.erase(0, text.find_first_not_of(" \t\r\n"));
    }
}
