// What the voice gate makes of a recording, beside what WebRTC's voice activity detector does:
// SpeechJudge RECORDING SENSITIVITY... prints a line for every 20 ms of a raw recording (16 bits,
// 48 kHz, mono), with a 0 or 1 for each sensitivity and one for WebRTC.

#include "Orvello/Voice/VoiceActivityDetector.h"
#include "Tests/EndToEnd/WebRtcDetector.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <span>
#include <string>
#include <vector>

namespace {

constexpr int sampleRate = Orvello::Testing::WebRtcDetector::sampleRate;
constexpr std::size_t frameSamples = Orvello::Testing::WebRtcDetector::frameSamples;
constexpr std::size_t blockSamples = 2 * frameSamples;

std::vector<float> samplesOf(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<float> samples;
    std::int16_t sample = 0;
    while (file.read(reinterpret_cast<char*>(&sample), sizeof sample))
        samples.push_back(static_cast<float>(sample) / 32768.0f);
    return samples;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return EXIT_FAILURE;
    std::vector<float> samples = samplesOf(argv[1]);
    std::vector<double> sensitivities;
    for (int i = 2; i < argc; ++i)
        sensitivities.push_back(std::strtod(argv[i], nullptr));
    std::vector<Orvello::VoiceActivityDetector> gates(sensitivities.size());
    Orvello::Testing::WebRtcDetector webRtc;

    for (std::size_t begin = 0; begin + blockSamples <= samples.size(); begin += blockSamples) {
        const std::span<float> block(samples.data() + begin, blockSamples);
        const double now = static_cast<double>(begin + blockSamples) / sampleRate;
        std::string line;
        for (std::size_t gate = 0; gate < gates.size(); ++gate)
            line += gates[gate].process(block, sensitivities[gate], now).isSpeaking ? '1' : '0';
        const bool first = webRtc.hearsVoice(block.data());
        const bool second = webRtc.hearsVoice(block.data() + frameSamples);
        line += first || second ? '1' : '0';
        std::puts(line.c_str());
    }
    return EXIT_SUCCESS;
}
