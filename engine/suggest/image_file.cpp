#include "engine/suggest/image_file.h"

#include <algorithm>
#include <utility>

namespace wordhawk {

Path ImageFileOf(const ProgramState& state) {
    return state.DataFolder / "Cache" / PathFromText(state.LanguageId + L".words");
}

std::optional<ImageFile> ImageFile::Open(const Path& path, int code_page, WordImage::Use use) {
    auto mapped = MappedFile::Open(path);
    if (!mapped) return std::nullopt;
    auto image = WordImage::Read(mapped->Bytes(), code_page, use);
    if (!image) return std::nullopt;
    return ImageFile{std::move(*mapped), std::move(*image)};
}

std::optional<MainTable> MainTableFromImage(const ProgramState& state) {
    auto file =
        ImageFile::Open(ImageFileOf(state), state.CodePage->Number(), WordImage::Use::Table);
    if (!file) return std::nullopt;
    MainTable table;
    for (const WordImage::FileRow& row : file->image.Files()) {
        std::wstring name = FromUtf8(file->image.FileName(row));
        // A look-up asks for names in lower case, the image holds the words of every file.
        if (Lower(name) != name) return std::nullopt;
        table.files.push_back({std::move(name), row.stamp, row.words > 0});
    }
    const auto by_name = [](const MainTable::File& a, const MainTable::File& b) {
        return a.name < b.name;
    };
    std::sort(table.files.begin(), table.files.end(), by_name);
    table.words = file->image.Table();
    table.count = file->image.WordCount() - file->image.PairCount();
    table.memory = std::make_shared<ImageFile>(std::move(*file));
    return table;
}

}  // namespace wordhawk
