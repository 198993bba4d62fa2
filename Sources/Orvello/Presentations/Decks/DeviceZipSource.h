#pragma once

#include <QtGlobal>

#include <zip.h>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace Orvello::PptxImporter {

/// Lets libzip read a device, within an allowance that limits the work a hostile archive can cause:
/// a read past it fails.
class DeviceZipSource {
public:
    struct Allowance {
        qint64 bytes = 0;
        qint64 reads = 0;
    };

    /// `device` is open, can seek, and must outlive the source.
    DeviceZipSource(QIODevice& device, Allowance allowance);
    DeviceZipSource(const DeviceZipSource&) = delete;
    DeviceZipSource& operator=(const DeviceZipSource&) = delete;
    ~DeviceZipSource();

    /// Still belongs to this object, which must outlive every archive made from it.
    zip_source_t* get() const { return m_source; }

    void setAllowance(Allowance allowance) { m_allowance = allowance; }

    /// Whether a read has failed for want of allowance.
    bool isSpent() const { return m_isSpent; }

private:
    static zip_int64_t serve(
        void* context, void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t read(void* data, zip_uint64_t length);
    zip_int64_t seek(void* arguments, zip_uint64_t length);
    zip_int64_t stat(void* data, zip_uint64_t length);
    zip_int64_t fail(int error);

    QIODevice& m_device;
    Allowance m_allowance;
    bool m_isSpent = false;
    zip_error_t m_error;
    zip_source_t* m_source = nullptr;
};

} // namespace Orvello::PptxImporter
