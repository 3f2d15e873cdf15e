// Splitting pasted clipboard text into the fields of a block of cells.

#include "grid/GridPasteText.h"

namespace {

std::string Trimmed(const std::string& field) {
    constexpr const char* kBlanks = " \t\r\n\v\f";
    const size_t first = field.find_first_not_of(kBlanks);
    if (first == std::string::npos) {
        return std::string();
    }
    return field.substr(first, field.find_last_not_of(kBlanks) - first + 1);
}

} // namespace

void ForEachPastedField(
    const std::string& text, const PasteGrid& grid,
    const std::function<bool(int row, int col, const std::string& field)>& put) {
    size_t position = 0;
    for (int line = 0;; line++) {
        const size_t end = text.find('\n', position);
        const bool last = end == std::string::npos;
        std::string content = text.substr(position, last ? std::string::npos : end - position);
        position = last ? text.size() : end + 1;
        if (!content.empty() && content.back() == '\r') {
            content.pop_back();
        }

        // A hidden row takes no line: the text goes on to the next shown row.
        int row = grid.firstRow + line;
        while (row < grid.rowCount && !grid.rowShown(row)) {
            row++;
            line++;
        }
        // An empty line has no field, and a line that ends in a separator no last empty one.
        size_t start = 0;
        for (int column = 0; start < content.size(); column++) {
            const size_t separator = content.find_first_of("\t,", start);
            const std::string field = content.substr(
                start, separator == std::string::npos ? std::string::npos : separator - start);
            start = separator == std::string::npos ? content.size() : separator + 1;
            int col = grid.firstCol + column;
            while (col < grid.colCount && !grid.colShown(col)) {
                col++;
                column++;
            }
            if (row < grid.rowCount && col < grid.colCount && !put(row, col, Trimmed(field))) {
                return;
            }
        }
        if (last) {
            return;
        }
    }
}
