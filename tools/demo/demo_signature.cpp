#include "demo_steps.hpp"

namespace velk::demo {

void run_signature_step(demo_context& context)
{
    demo_context::say("signature step: not yet available");
    (void)context;
}

}  // namespace velk::demo
