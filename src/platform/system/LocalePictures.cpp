#include "platform/system/LocalePictures.h"

#include <cctype>

std::string PictureFromStrftime(const char* picture) {
    std::string result;
    for (const char* p = picture; *p != '\0'; ++p) {
        if (*p != '%') {
            if (*p == '\'')
                result += "''";
            else if (std::isalpha(static_cast<unsigned char>(*p)))
                result += '\'', result += *p, result += '\'';
            else
                result += *p;
            continue;
        }
        ++p;
        while (*p == 'E' || *p == 'O' || *p == '-' || *p == '_' || *p == '0')
            ++p;
        switch (*p) {
        case 'd':
            result += "dd";
            break;
        case 'e':
            result += "d";
            break;
        case 'm':
            result += "MM";
            break;
        case 'b':
        case 'h':
            result += "MMM";
            break;
        case 'B':
            result += "MMMM";
            break;
        case 'a':
            result += "ddd";
            break;
        case 'A':
            result += "dddd";
            break;
        case 'y':
            result += "yy";
            break;
        case 'Y':
            result += "yyyy";
            break;
        case 'H':
            result += "HH";
            break;
        case 'k':
            result += "H";
            break;
        case 'I':
            result += "hh";
            break;
        case 'l':
            result += "h";
            break;
        case 'M':
            result += "mm";
            break;
        case 'S':
            result += "ss";
            break;
        case 'p':
        case 'P':
            result += "tt";
            break;
        case 'D':
            result += "MM/dd/yy";
            break;
        case 'F':
            result += "yyyy-MM-dd";
            break;
        case 'T':
            result += "HH:mm:ss";
            break;
        case 'R':
            result += "HH:mm";
            break;
        case 'r':
            result += "hh:mm:ss tt";
            break;
        case '%':
            result += '%';
            break;
        case '\0':
            return result;
        default:
            break;
        }
    }
    return result;
}

std::string ShortTimePicture(std::string picture) {
    const auto seconds = picture.find("ss");
    if (seconds == std::string::npos)
        return picture;
    auto first = seconds;
    while (first > 0 && !std::isalpha(static_cast<unsigned char>(picture[first - 1])))
        --first;
    picture.erase(first, seconds + 2 - first);
    return picture;
}
