// The demo: shows the library's main job as far as it goes, and writes every
// message it makes into an output folder with a manifest.json beside them.
//
//   velk-demo [--out DIR]
#include "demo_context.hpp"
#include "demo_steps.hpp"

#include <velk/erp/tarn/versao_biblioteca.hpp>

#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>

int main(int argc, char** argv)
{
    std::filesystem::path out = VELK_DEMO_DEFAULT_OUT;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--out") == 0 && i + 1 < argc) {
            out = argv[++i];
        } else if (std::strcmp(argv[i], "--help") == 0) {
            std::printf("usage: velk-demo [--out DIR]\n"
                        "Runs the library's main job and writes each message into DIR (default %s),\n"
                        "with DIR/manifest.json listing what each file holds.\n",
                        VELK_DEMO_DEFAULT_OUT);
            return 0;
        } else {
            std::fprintf(stderr, "velk-demo: unknown argument %s (try --help)\n", argv[i]);
            return 2;
        }
    }
    std::filesystem::create_directories(out);
    velk::demo::demo_context context(out);
    velk::demo::demo_context::say(std::string("velk-erp-tarn ") + velk::erp::tarn::get_versao_biblioteca() +
                                  " demo, output in " + out.string());
    try {
        velk::demo::run_signature_step(context);
        velk::demo::run_queries_step(context);
        velk::demo::run_status_step(context);
        velk::demo::run_generation_step(context);
        velk::demo::run_qrcode_step(context);
        velk::demo::run_json_step(context);
        velk::demo::demo_authority authority(context);
        velk::demo::road_results const road = velk::demo::run_authorization_step(context, authority);
        velk::demo::run_events_step(authority, road);
        velk::demo::run_layout_3_10_step(context);
        context.write_manifest();
    } catch (velk::demo::demo_failure const& failure) {
        std::fprintf(stderr, "velk-demo: %s\n", failure.what.c_str());
        return 1;
    } catch (std::exception const& error) {
        std::fprintf(stderr, "velk-demo: %s\n", error.what());
        return 1;
    }
    return 0;
}
