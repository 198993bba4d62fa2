#include "Orvello/Presentations/Decks/DeviceZipSource.h"

#include <QIODevice>

namespace Orvello::PptxImporter {

DeviceZipSource::DeviceZipSource(QIODevice& device, Allowance allowance)
    : m_device(device)
    , m_allowance(allowance)
{
    zip_error_init(&m_error);
    m_source = zip_source_function_create(&DeviceZipSource::serve, this, nullptr);
}

DeviceZipSource::~DeviceZipSource()
{
    zip_source_free(m_source);
    zip_error_fini(&m_error);
}

zip_int64_t DeviceZipSource::serve(
    void* context, void* data, zip_uint64_t length, zip_source_cmd_t command)
{
    DeviceZipSource& self = *static_cast<DeviceZipSource*>(context);
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
            ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL,
            ZIP_SOURCE_SUPPORTS, -1);
    case ZIP_SOURCE_OPEN:
        return self.m_device.seek(0) ? 0 : self.fail(ZIP_ER_SEEK);
    case ZIP_SOURCE_READ:
        return self.read(data, length);
    case ZIP_SOURCE_SEEK:
        return self.seek(data, length);
    case ZIP_SOURCE_TELL:
        return self.m_device.pos();
    case ZIP_SOURCE_STAT:
        return self.stat(data, length);
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&self.m_error, data, length);
    case ZIP_SOURCE_CLOSE:
    case ZIP_SOURCE_FREE:
        return 0;
    default:
        return self.fail(ZIP_ER_OPNOTSUPP);
    }
}

zip_int64_t DeviceZipSource::read(void* data, zip_uint64_t length)
{
    m_isSpent = m_allowance.reads <= 0 || length > static_cast<zip_uint64_t>(m_allowance.bytes);
    if (m_isSpent)
        return fail(ZIP_ER_READ);
    const qint64 count = m_device.read(static_cast<char*>(data), static_cast<qint64>(length));
    if (count < 0)
        return fail(ZIP_ER_READ);
    m_allowance.bytes -= count;
    --m_allowance.reads;
    return count;
}

zip_int64_t DeviceZipSource::seek(void* arguments, zip_uint64_t length)
{
    const zip_int64_t position
        = zip_source_seek_compute_offset(static_cast<zip_uint64_t>(m_device.pos()),
            static_cast<zip_uint64_t>(m_device.size()), arguments, length, &m_error);
    if (position < 0)
        return -1;
    return m_device.seek(position) ? 0 : fail(ZIP_ER_SEEK);
}

zip_int64_t DeviceZipSource::stat(void* data, zip_uint64_t length)
{
    if (length < sizeof(zip_stat_t))
        return fail(ZIP_ER_INVAL);
    zip_stat_t& stat = *static_cast<zip_stat_t*>(data);
    zip_stat_init(&stat);
    stat.valid = ZIP_STAT_SIZE;
    stat.size = static_cast<zip_uint64_t>(m_device.size());
    return sizeof(zip_stat_t);
}

zip_int64_t DeviceZipSource::fail(int error)
{
    zip_error_set(&m_error, error, 0);
    return -1;
}

} // namespace Orvello::PptxImporter
