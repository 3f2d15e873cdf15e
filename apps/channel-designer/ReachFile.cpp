// Reading and writing reach files.

#include "ReachFile.h"

#include "support/DataReader.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using FilePtr = std::unique_ptr<FILE, int (*)(FILE*)>;

bool ReadLining(CString& line, int& lining) {
    CString name;
    if (!daGetText(line, name))
        return false;
    const auto& linings = Linings();
    for (size_t i = 0; i < linings.size(); ++i)
        if (name.CompareNoCase(linings[i].name) == 0) {
            lining = int(i);
            return true;
        }
    return false;
}

bool ReadDate(CString& line, CalendarDate& date) {
    CString text;
    CalendarDate read;
    char rest = 0;
    if (!daGetText(line, text) ||
        std::sscanf(text.GetString(), "%d-%d-%d%c", &read.year, &read.month, &read.day, &rest) !=
            3 ||
        read.month < 1 || read.month > 12 || read.day < 1 || read.day > 31)
        return false;
    date = read;
    return true;
}

bool ReadColour(CString& line, unsigned long& colour) {
    CString text;
    if (!daGetText(line, text) || text.GetLength() != 7 || text[0] != '#')
        return false;
    char* end = nullptr;
    const unsigned long rgb = std::strtoul(text.GetString() + 1, &end, 16);
    if (*end)
        return false;
    // #RRGGBB as written by people; red | green << 8 | blue << 16 as the library keeps it.
    colour = (rgb >> 16 & 0xFF) | (rgb & 0xFF00) | (rgb & 0xFF) << 16;
    return true;
}

bool ReadInflow(CString& line, Inflow& inflow) {
    CString kind;
    if (!daGetText(line, kind))
        return false;
    if (kind == "const") {
        inflow = Inflow{};
        return daReadData(line, inflow.constant) == 1;
    }
    int count = 0;
    if (kind != "curve" || !daReadData(line, count) || count < 1 || count > 1000)
        return false;
    Inflow curve;
    curve.isCurve = true;
    for (int i = 0; i < count; ++i) {
        double hours = 0, rate = 0;
        if (!daReadData(line, hours) || !daReadData(line, rate))
            return false;
        curve.curve.emplace_back(hours, rate);
    }
    inflow = curve;
    return true;
}

bool ReadSection(CString& line, CrossSection& section) {
    int surveyed = 0;
    return daReadData(line, section.chainage) && daReadData(line, section.invert) &&
           daReadData(line, section.bedWidth) && daReadData(line, section.sideSlope) &&
           daReadData(line, section.barrels) && section.barrels >= 1 &&
           ReadLining(line, section.lining) && ReadDate(line, section.lined) &&
           daReadData(line, surveyed) && (section.surveyed = surveyed != 0, true) &&
           ReadColour(line, section.colour) && ReadInflow(line, section.inflow);
}

} // namespace

bool ReadReachFile(const std::string& path, Reach& reach, std::string& error) {
    FilePtr file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!file) {
        error = "cannot open " + path;
        return false;
    }
    daSetLineCount(file.get(), 0); // so that the first line counts as line 1
    Reach read;
    bool haveDischarge = false;
    CString line, keyword;
    auto fail = [&](const char* what) {
        error = path + ", line " + std::to_string(daGetLineCount(file.get())) + ": " + what;
        return false;
    };
    while (daGetLine(line, file.get())) {
        line.TrimLeft();
        if (line.IsEmpty() || line[0] == '#')
            continue;
        daGetText(line, keyword);
        if (keyword == "reach") {
            CString name;
            if (!daGetText(line, name))
                return fail("the reach needs a name");
            read.name = name.GetString();
        } else if (keyword == "discharge") {
            if (!daReadData(line, read.discharge) || read.discharge < 0)
                return fail("the discharge must be a number of m3/s, 0 or more");
            haveDischarge = true;
        } else if (keyword == "section") {
            CrossSection section;
            if (!ReadSection(line, section))
                return fail("a section needs chainage, invert, bed width, side slope, lining, "
                            "date, surveyed, colour and inflow");
            if (!read.sections.empty() && section.chainage <= read.sections.back().chainage)
                return fail("sections must follow each other down the reach");
            read.sections.push_back(section);
        } else {
            return fail("unknown record");
        }
    }
    if (!haveDischarge || read.sections.size() < 2) {
        error = path + ": a reach needs a discharge and at least two sections";
        return false;
    }
    reach = std::move(read);
    return true;
}

bool WriteReachFile(const std::string& path, const Reach& reach) {
    FilePtr file(std::fopen(path.c_str(), "wb"), &std::fclose);
    if (!file)
        return false;
    FILE* out = file.get();
    std::fprintf(out, "# Channel designer reach\nreach \"%s\"\ndischarge %.6g\n",
                 reach.name.c_str(), reach.discharge);
    for (const CrossSection& s : reach.sections) {
        const unsigned long c = s.colour;
        std::fprintf(out,
                     "section %.6g %.6g %.6g %.6g %d \"%s\" %04d-%02d-%02d %d #%02lX%02lX%02lX",
                     s.chainage, s.invert, s.bedWidth, s.sideSlope, s.barrels,
                     Linings()[size_t(s.lining)].name, s.lined.year, s.lined.month, s.lined.day,
                     s.surveyed ? 1 : 0, c & 0xFF, c >> 8 & 0xFF, c >> 16 & 0xFF);
        if (s.inflow.isCurve) {
            std::fprintf(out, " curve %d", int(s.inflow.curve.size()));
            for (const auto& [hours, rate] : s.inflow.curve)
                std::fprintf(out, " %.6g %.6g", hours, rate);
        } else {
            std::fprintf(out, " const %.6g", s.inflow.constant);
        }
        std::fprintf(out, "\n");
    }
    return std::fflush(out) == 0;
}
