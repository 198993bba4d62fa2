#include "Orvello/Adapters/Linux/Desktop/HardwareRenderer.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

TEST(HardwareRendererTest, knowsTheRenderersThatAreTheProcessor)
{
    for (const char* const name :
        { "llvmpipe (LLVM 15.0.6, 256 bits)", "softpipe", "Software Rasterizer", "Mesa DRI swrast",
            "SWR (OpenSWR, AVX2)", "Gallium 0.4 on llvmpipe (LLVM 3.4, 128 bits)" })
        EXPECT_TRUE(HardwareRenderer::isSoftware(name)) << name;
}

TEST(HardwareRendererTest, takesEverythingElseForHardware)
{
    for (const char* const name : { "Mesa Intel(R) UHD Graphics 620 (KBL GT2)",
             "AMD Radeon RX 6600 (navi23, LLVM 15.0.6)", "NVIDIA GeForce RTX 3060/PCIe/SSE2",
             "virgl (AMD Radeon RX 580)", "V3D 4.2", "Mali-G52", "SVGA3D; build: RELEASE; LLVM;",
             "zink Vulkan 1.3(NVIDIA GeForce GTX 1650)", "Apple M1 Pro", "Adreno (TM) 690", "" })
        EXPECT_FALSE(HardwareRenderer::isSoftware(name)) << name;
}

} // namespace
} // namespace Orvello
