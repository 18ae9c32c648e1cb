#pragma once

// The command line cut into words. The words are kept for the application object; none is interpreted.

class CommandLineWords {
  public:
    static constexpr int MostWords = 128;

    // Copies the command line. Blanks and tabs separate words; a word that starts with a double quote ends at
    // the next one, and the quotes are not part of it. Words beyond the 128th are dropped; without memory
    // there are none.
    explicit CommandLineWords(const wchar_t* commandLine);
    CommandLineWords(const CommandLineWords&) = delete;
    CommandLineWords& operator=(const CommandLineWords&) = delete;
    ~CommandLineWords();

    int Count() const { return count_; }
    // Count() null-terminated texts, valid as long as this object.
    const wchar_t* const* List() const { return words_; }

  private:
    void Split();

    wchar_t* text_ = nullptr;
    int count_ = 0;
    const wchar_t* words_[MostWords] = {};
};
