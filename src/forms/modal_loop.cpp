#include "forms/modal_loop.h"

namespace horavex {

namespace {

int depth = 0;

}  // namespace

ModalLoop::ModalLoop() {
    ++depth;
}

ModalLoop::~ModalLoop() {
    --depth;
}

int ModalLoop::Depth() {
    return depth;
}

}  // namespace horavex
