// The support library at work on an engineering data file: a culvert table written with a
// header, quoted names, numbers and a comment, read back token by token, and shown in a window
// with the numbers as the library formats them for the user.

#include "GalleryPage.h"

#include "platform/gdi/Font.h"
#include "platform/gdi/GdiTypes.h"
#include "platform/system/FileSystem.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemParameters.h"
#include "platform/window/WindowDC.h"
#include "platform/window/WindowStyles.h"
#include "support/DataReader.h"
#include "support/FormatDouble.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

struct Culvert {
    CString name;
    double diameter = 0;  // m
    double roughness = 0; // Manning's n
    int barrels = 0;
    double length = 0; // m
};

void WriteDataFile(const std::string& path) {
    FILE* file = std::fopen(path.c_str(), "w");
    std::fputs("Culverts of crossing C-7: name, diameter (m), Manning n, barrels, length (m)\n"
               "\"Main pipe\", 1.20, 0.013, 3, 42.5\n"
               "\"Relief pipe\"\t0.90\t0.024\t1\t38.0\r\n"
               "\"Box, west\" 2.5 0.012 2 40\n"
               "* end of table: the comment line is not a culvert\n",
               file);
    std::fclose(file);
}

std::vector<Culvert> ReadDataFile(GalleryContext& context, const std::string& path) {
    std::vector<Culvert> culverts;
    FILE* file = std::fopen(path.c_str(), "r");
    if (file == nullptr) {
        context.Print("cannot open %s", path.c_str());
        return culverts;
    }
    daSetLineCount(file, 0);
    CString line;
    daGetLine(line, file);
    context.Print("header: %s", static_cast<const char*>(line));
    while (daGetLine(line, file)) {
        Culvert c;
        if (daReadData(line, c.name) && daReadData(line, c.diameter) &&
            daReadData(line, c.roughness) && daReadData(line, c.barrels) &&
            daReadData(line, c.length)) {
            culverts.push_back(c);
            continue;
        }
        context.Print("line %d is not a culvert: name \"%s\", rest \"%s\"", daGetLineCount(file),
                      static_cast<const char*>(c.name), static_cast<const char*>(line));
    }
    std::fclose(file);
    return culverts;
}

CString Row(const Culvert& c) {
    CString row;
    row.Format("%-14s %8s %8s %4d %8s", static_cast<const char*>(c.name),
               static_cast<const char*>(xgFormatDouble(c.diameter, -1, 15, 0)),
               static_cast<const char*>(xgFormatDouble(c.roughness, -1, 15, 0)), c.barrels,
               static_cast<const char*>(xgFormatDouble(c.length, 1, 15, 0)));
    return row;
}

// A plain window that lists the table as read.
class TableWnd : public CWnd {
public:
    explicit TableWnd(std::vector<CString> lines) : m_lines(std::move(lines)) {}

protected:
    void OnPaint() override {
        CPaintDC dc(this);
        RECT client{};
        GetClientRect(&client);
        dc.FillSolidRect(client, GetSysColor(COLOR_WINDOW));
        NONCLIENTMETRICS metrics{};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        LOGFONT face = metrics.lfMessageFont;
        face.lfHeight = -13;
        std::strcpy(face.lfFaceName, "Courier New");
        CFont font;
        font.CreateFontIndirect(&face);
        CFont* old = dc.SelectObject(&font);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(GetSysColor(COLOR_WINDOWTEXT));
        RECT row{12, 10, client.right - 12, 28};
        for (const CString& line : m_lines) {
            dc.DrawText(line, &row, DT_LEFT | DT_SINGLELINE | DT_NOPREFIX);
            row.top += 20;
            row.bottom += 20;
        }
        dc.SelectObject(old);
    }

private:
    std::vector<CString> m_lines;
};

void ShowTable(GalleryContext& context, const std::vector<Culvert>& culverts) {
    std::vector<CString> lines = {"Name           Diameter  Manning   No   Length"};
    for (const Culvert& c : culverts)
        lines.push_back(Row(c));
    TableWnd window(lines);
    if (!window.CreateEx(0, nullptr, "Culvert table read from text",
                         WS_OVERLAPPEDWINDOW | WS_VISIBLE, 80, 80, 480, 170, nullptr, nullptr))
        return;
    window.UpdateWindow();
    context.Capture(window.GetSafeHwnd(), "text-data");
    window.DestroyWindow();
}

void BuildTextDataPage(GalleryContext& context) {
    const std::string path = context.OutputPath("culverts.txt");
    WriteDataFile(path);
    const std::vector<Culvert> culverts = ReadDataFile(context, path);
    for (const Culvert& c : culverts)
        context.Print("culvert: %s", static_cast<const char*>(Row(c)));

    const double samples[] = {0.0, 1.5, 123.456, 1e12, 999999999999.0, 0.00001, 0.000009, -2.5e-7};
    for (double v : samples)
        context.Print("xgFormatDouble(%.15g, -1, 15, 0) = \"%s\"", v,
                      static_cast<const char*>(xgFormatDouble(v, -1, 15, 0)));
    context.Print("xgFormatDouble(3.0, 2, 15, FMT_MAX_DECIMALS) = \"%s\"",
                  static_cast<const char*>(xgFormatDouble(3.0, 2, 15, FMT_MAX_DECIMALS)));

    std::string temporary;
    context.Print("temporary directory: %s",
                  GetTempDir(temporary) ? temporary.c_str() : "(none found)");
    ShowTable(context, culverts);
}

} // namespace

GALLERY_PAGE("60-text-data", "Text data reader", BuildTextDataPage);
