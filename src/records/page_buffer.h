#pragma once

#include <QtGlobal>

#include <memory>
#include <new>

// Bytes that begin at a page of memory: some processors copy a file three times as fast to there as to an odd place.
class PageBuffer {
public:
    // What it held is lost. Its memory is used again as long as it is large enough.
    void resize(qsizetype size) {
        if (size > room_) {
            const qsizetype more = room_ == 0 ? 0 : size / 8; // a file that grows goes on growing
            bytes_.reset();
            room_ = 0;
            bytes_.reset(static_cast<char*>(::operator new(static_cast<std::size_t>(size + more), page)));
            room_ = size + more;
        }
        size_ = size;
    }
    // Keeps the first `size` bytes.
    void truncate(qsizetype size) { size_ = size; }

    qsizetype size() const { return size_; }
    char* data() { return bytes_.get(); }
    const char* constData() const { return bytes_.get(); }

private:
    static constexpr std::align_val_t page{4096};
    struct Free {
        void operator()(char* bytes) const { ::operator delete(bytes, page); }
    };

    std::unique_ptr<char, Free> bytes_;
    qsizetype room_ = 0;
    qsizetype size_ = 0;
};
