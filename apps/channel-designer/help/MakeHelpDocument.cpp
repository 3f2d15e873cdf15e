// Writes the application's help document, rd4.pdf, at build time: a plain PDF whose headings
// are the help topics of the library, each a named destination, so that the Help buttons and
// menu open the reader at the right place. The topics this application uses carry its own
// help text; the others say that they belong to the culvert design suite.

#include "support/HelpDocument.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr int kLastTopic = 53;
constexpr double kPageWidth = 595, kPageHeight = 842, kMargin = 56;
constexpr double kBodySize = 10.5, kHeadingSize = 15, kLineGap = 4;
constexpr size_t kLineCharacters = 92; // Helvetica at 10.5 pt across the text width

const std::map<int, std::vector<const char*>> kTopicText = {
    {0,
     {"Channel Designer works out uniform flow in open channels and culvert approaches with "
      "Manning's equation. A reach is a list of cross-sections along the channel; for each the "
      "engineer enters the chainage, the invert level, the bed width and side slope of the "
      "trapezoid, the lining (which gives Manning's n), the date it was lined, whether it was "
      "surveyed, the colour it is drawn in, and an inflow that joins there, constant or as a "
      "hydrograph.",
      "Open a reach with File > Open Reach. Its spreadsheet of sections opens with two plots: the "
      "long profile of bed and water surface, and the rating curves of the surveyed sections. "
      "Every change in the spreadsheet shows at once in both plots; a bed point dragged in the "
      "long profile changes the invert in the spreadsheet."}},
    {8,
     {"Reach > Flow Calculator works on one section: choose it at the top. The channel fields "
      "take the section's bed width, side slope, roughness and bed slope, which may be changed "
      "to try other designs. Type a discharge, a depth or a velocity: the other two follow as "
      "you type, with the Froude number below them.",
      "The design discharge of the reach follows the discharge field; OK makes it the reach's "
      "discharge at its first section, and the profile is worked out again."}},
    {18,
     {"At each section the discharge is the design discharge plus every inflow down to that "
      "section (the peak of a hydrograph). The depth is the normal depth of that discharge over "
      "the bed slope towards the next section: Q = A R^(2/3) S^(1/2) / n, with A the flow area "
      "and R = A / P the hydraulic radius of the trapezoid. Where the bed does not fall there "
      "is no uniform flow, and the spreadsheet says \"no flow\"."}},
    {23,
     {"The long profile shows the bed (squares) and the normal-depth water surface. The rating "
      "curves plot depth against discharge for each surveyed section in its colour, with the "
      "straight line that fits each best; the formula of the first is under the title. Right "
      "click a plot for its menu: frame, legend, values, export and print."}},
};

std::string Escape(const std::string& text) {
    std::string escaped;
    for (char c : text) {
        if (c == '(' || c == ')' || c == '\\')
            escaped += '\\';
        escaped += c;
    }
    return escaped;
}

std::vector<std::string> Wrap(const std::string& text) {
    std::vector<std::string> lines;
    std::string line;
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find(' ', start);
        if (end == std::string::npos)
            end = text.size();
        const std::string word = text.substr(start, end - start);
        if (!line.empty() && line.size() + 1 + word.size() > kLineCharacters) {
            lines.push_back(line);
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
        start = end + 1;
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

class Document {
public:
    void Heading(const std::string& text, bool chapter) {
        if (m_pages.empty() || (chapter && m_y < kPageHeight - kMargin - 1) ||
            m_y - kHeadingSize * 3 < kMargin)
            NewPage();
        m_destinations.push_back({text, int(m_pages.size()) - 1, m_y + kHeadingSize});
        Text("F2", chapter ? kHeadingSize + 3 : kHeadingSize, text);
        m_y -= kLineGap * 2;
    }
    void Paragraph(const std::string& text) {
        for (const std::string& line : Wrap(text)) {
            if (m_y - kBodySize < kMargin)
                NewPage();
            Text("F1", kBodySize, line);
        }
        m_y -= kLineGap * 2;
    }
    bool Write(const char* path);

private:
    struct Destination {
        std::string name;
        int page;
        double top;
    };
    void NewPage() {
        m_pages.emplace_back();
        m_y = kPageHeight - kMargin;
    }
    void Text(const char* font, double size, const std::string& text) {
        m_y -= size;
        char head[96];
        std::snprintf(head, sizeof head, "BT /%s %.1f Tf %.1f %.1f Td (", font, size, kMargin, m_y);
        m_pages.back() += head + Escape(text) + ") Tj ET\n";
        m_y -= kLineGap;
    }

    std::vector<std::string> m_pages; // content streams
    std::vector<Destination> m_destinations;
    double m_y = 0;
};

bool Document::Write(const char* path) {
    FILE* file = std::fopen(path, "wb");
    if (!file)
        return false;
    std::string out = "%PDF-1.4\n";
    std::vector<size_t> offsets;
    auto object = [&](const std::string& body) {
        offsets.push_back(out.size());
        out += std::to_string(offsets.size()) + " 0 obj\n" + body + "\nendobj\n";
    };
    // Objects: 1 catalog, 2 pages, 3 and 4 fonts, then a page and its contents for each page.
    const int firstPage = 5;
    std::string kids;
    for (size_t i = 0; i < m_pages.size(); ++i)
        kids += std::to_string(firstPage + 2 * i) + " 0 R ";
    std::sort(m_destinations.begin(), m_destinations.end(),
              [](const Destination& a, const Destination& b) { return a.name < b.name; });
    std::string names;
    for (const Destination& d : m_destinations) {
        char target[80];
        std::snprintf(target, sizeof target, "[%d 0 R /XYZ 0 %.1f null]", firstPage + 2 * d.page,
                      d.top);
        names += "(" + Escape(d.name) + ") " + target + "\n";
    }
    object("<< /Type /Catalog /Pages 2 0 R /Names << /Dests << /Names [\n" + names + "] >> >> >>");
    object("<< /Type /Pages /Kids [" + kids + "] /Count " + std::to_string(m_pages.size()) + " >>");
    object("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>");
    object("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica-Bold /Encoding "
           "/WinAnsiEncoding >>");
    for (size_t i = 0; i < m_pages.size(); ++i) {
        char page[200];
        std::snprintf(page, sizeof page,
                      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 %.0f %.0f] /Resources << "
                      "/Font << /F1 3 0 R /F2 4 0 R >> >> /Contents %zu 0 R >>",
                      kPageWidth, kPageHeight, firstPage + 2 * i + 1);
        object(page);
        object("<< /Length " + std::to_string(m_pages[i].size()) + " >>\nstream\n" + m_pages[i] +
               "endstream");
    }
    const size_t xref = out.size();
    out += "xref\n0 " + std::to_string(offsets.size() + 1) + "\n0000000000 65535 f \n";
    for (size_t offset : offsets) {
        char entry[24];
        std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", offset);
        out += entry;
    }
    out += "trailer\n<< /Size " + std::to_string(offsets.size() + 1) +
           " /Root 1 0 R >>\nstartxref\n" + std::to_string(xref) + "\n%%EOF\n";
    const bool written = std::fwrite(out.data(), 1, out.size(), file) == out.size();
    return std::fclose(file) == 0 && written;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: make-help-document output.pdf\n");
        return 2;
    }
    Document document;
    for (int topic = 0; topic <= kLastTopic; ++topic) {
        const std::string title = HelpDocument::TopicTitle(topic);
        if (title.empty())
            continue;
        // A numbered title without a sub-number ("5. Analysis") begins a chapter.
        const bool chapter = title.size() > 2 && title[0] >= '0' && title[0] <= '9' &&
                             title.find(". ") == title.find('.');
        document.Heading(title, chapter);
        const auto text = kTopicText.find(topic);
        if (text != kTopicText.end())
            for (const char* paragraph : text->second)
                document.Paragraph(paragraph);
        else
            document.Paragraph("This topic belongs to the culvert design suite; Channel Designer "
                               "does not use it.");
    }
    return document.Write(argv[1]) ? 0 : 1;
}
