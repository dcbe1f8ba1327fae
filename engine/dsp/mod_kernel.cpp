#include "mod_kernel.h"

#include "modulator.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace zuvo::dsp::detail {

// With x_b the state at the start of block b and primes marking block b+1:
//   x_{b+1}   = A^K x_b + sum_m A^(K-1-m) (B0 u_m + B1 v_m)
//   y'_j      = C A^(K+j) x_b + sum_m C A^(K+j-1-m) (B0 u_m + B1 v_m)
//             + D0 u'_j + sum_{m<j} C A^(j-1-m) B0 u'_m + sum_{m<j} h_(j-m) v'_m
// so everything the next block's decisions need, except the v's of block b
// itself, can be computed from x_b while block b is still deciding. The
// decisions then feed one xor-and-add per column (Vv) into the next state
// and candidates, which keeps the loop-carried path short.
void buildBlockKernel(const ModulatorDesign& d, BlockKernel& k)
{
    const int n = d.n;
    const int K = kBlock;
    k.n = n;
    k.np = n <= 4 ? 4 : n <= 8 ? 8 : n <= 12 ? 12 : 16;
    k.rows = k.np + K;
    const int R = k.rows, np = k.np;
    auto mulA = [&](const std::vector<double>& v) {
        std::vector<double> r(n, 0.0);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j)
                r[i] += d.A[std::size_t(i) * n + j] * v[j];
        return r;
    };
    auto dotC = [&](const std::vector<double>& v) {
        double s = 0;
        for (int i = 0; i < n; ++i)
            s += d.C[i] * v[i];
        return s;
    };
    const int P = 2 * K + 1;
    std::vector<std::vector<double>> AB0(P), AB1(P);
    AB0[0] = d.B0;
    AB1[0] = d.B1;
    for (int p = 1; p < P; ++p) {
        AB0[p] = mulA(AB0[p - 1]);
        AB1[p] = mulA(AB1[p - 1]);
    }
    k.Mx.assign(std::size_t(R) * np, 0.0);
    k.Mc.assign(std::size_t(K) * np, 0.0);
    for (int c = 0; c < n; ++c) {
        std::vector<double> e(n, 0.0);
        e[c] = 1;
        for (int p = 0; p < 2 * K; ++p) {
            if (p < K)
                k.Mc[std::size_t(c) * K + p] = dotC(e); // C A^p
            else
                k.Mx[std::size_t(c) * R + np + (p - K)] = dotC(e); // C A^(K+j)
            if (p == K - 1) {
                const auto ak = mulA(e);
                for (int i = 0; i < n; ++i)
                    k.Mx[std::size_t(c) * R + i] = ak[i]; // A^K
            }
            e = mulA(e);
        }
    }
    k.MuX.assign(std::size_t(R) * K, 0.0);
    k.Vv.assign(std::size_t(R) * K, 0.0);
    k.MuIn.assign(std::size_t(K) * K, 0.0);
    k.Hv.assign(K, 0.0);
    for (int m = 0; m < K; ++m) {
        for (int i = 0; i < n; ++i) {
            k.MuX[std::size_t(m) * R + i] = AB0[K - 1 - m][i];
            k.Vv[std::size_t(m) * R + i] = AB1[K - 1 - m][i];
        }
        for (int j = 0; j < K; ++j) {
            k.MuX[std::size_t(m) * R + np + j] = dotC(AB0[K + j - 1 - m]);
            k.Vv[std::size_t(m) * R + np + j] = dotC(AB1[K + j - 1 - m]);
            if (j == m)
                k.MuIn[std::size_t(m) * K + j] = d.D0;
            else if (j > m)
                k.MuIn[std::size_t(m) * K + j] = dotC(AB0[j - 1 - m]);
        }
    }
    for (int l = 1; l < K; ++l)
        k.Hv[l] = dotC(AB1[l - 1]);
    k.symmetric = true;
    for (int i = 0; i < n; ++i)
        k.symmetric = k.symmetric && d.B0[i] == -d.B1[i];
    k.lim.assign(np, 1e300);
    k.limLo.assign(np, -1e300);
    for (int i = 0; i < n; ++i) {
        k.lim[i] = d.limit[i];
        k.limLo[i] = -d.limit[i];
    }
}

typedef double v4d __attribute__((vector_size(32)));
typedef long long v4i __attribute__((vector_size(32)));

// One scalar lane kept opaque to the vectoriser: the decision chain must
// stay a short scalar dependency (and, xor, add per bit); letting the
// compiler pack it into vectors adds shuffles to every step.
#if defined(__x86_64__)
#define ZUVO_OPAQUE(v) asm("" : "+x"(v))
#else
#define ZUVO_OPAQUE(v) asm("" : "+r"(v))
#endif

// NC: state columns actually used (the rest of NP is padding), even.
template <int NP, bool TRACK, bool SYM, bool PACK = false, int NC = NP>
__attribute__((always_inline)) inline std::size_t runBlocksT(const BlockKernel& k, double* xio, const double* u,
                                                             std::size_t nblocks, std::uint8_t* bits,
                                                             std::uint8_t* flags, double* peak)
{
    constexpr int K = kBlock;
    constexpr int R = NP + K;
    constexpr int RV = R / 4, SV = NP / 4, KV = K / 4;
    v4d Mx[NP][RV], MuX[K][RV], Vv[K][RV], MuIn[K][KV], Mc[NP][KV], lim[SV], limLo[SV];
    std::memcpy(Mx, k.Mx.data(), sizeof Mx);
    std::memcpy(MuX, k.MuX.data(), sizeof MuX);
    std::memcpy(Vv, k.Vv.data(), sizeof Vv);
    std::memcpy(MuIn, k.MuIn.data(), sizeof MuIn);
    std::memcpy(Mc, k.Mc.data(), sizeof Mc);
    std::memcpy(lim, k.lim.data(), sizeof lim);
    std::memcpy(limLo, k.limLo.data(), sizeof limLo);
    double h[K];
    for (int l = 0; l < K; ++l)
        h[l] = k.Hv[l];
    v4d x[SV];
    std::memcpy(x, xio, sizeof x);

    auto inputTerms = [&](const double* ub, v4d* w) __attribute__((always_inline)) {
        for (int r = 0; r < KV; ++r)
            w[r] = MuIn[0][r] * ub[0];
        for (int m = 1; m < K; ++m)
            for (int r = 0; r < KV; ++r)
                w[r] += MuIn[m][r] * ub[m];
    };
    // Candidates of the first block straight from the state.
    v4d cand[KV];
    auto candFromState = [&](const double* ub) __attribute__((always_inline)) {
        inputTerms(ub, cand);
        for (int c = 0; c < NP; ++c)
            for (int r = 0; r < KV; ++r)
                cand[r] += Mc[c][r] * x[c / 4][c % 4];
    };
    if (nblocks > 0)
        candFromState(u);
    v4d pk[SV];
    for (int i = 0; i < SV; ++i)
        pk[i] = v4d{0, 0, 0, 0};
    std::size_t clipped = 0;
    for (std::size_t b = 0; b < nblocks; ++b) {
        const double* ub = u + b * K;
        // Off the critical path: next state and next candidates from x_b.
        v4d acc0[RV], acc1[RV];
        if constexpr (SYM) {
            for (int r = 0; r < RV; ++r) {
                acc0[r] = v4d{0, 0, 0, 0};
                acc1[r] = v4d{0, 0, 0, 0};
            }
        } else {
            for (int r = 0; r < RV; ++r) {
                acc0[r] = MuX[0][r] * ub[0];
                acc1[r] = MuX[1][r] * ub[1];
            }
            for (int m = 2; m < K; m += 2)
                for (int r = 0; r < RV; ++r) {
                    acc0[r] += MuX[m][r] * ub[m];
                    acc1[r] += MuX[m + 1][r] * ub[m + 1];
                }
        }
        for (int c = 0; c < NC; c += 2) {
            const double x0 = x[c / 4][c % 4], x1 = x[c / 4][c % 4 + 1];
            for (int r = 0; r < RV; ++r) {
                acc0[r] += Mx[c][r] * x0;
                acc1[r] += Mx[c + 1][r] * x1;
            }
        }
        const bool last = b + 1 == nblocks;
        v4d win[KV];
        if (!last)
            inputTerms(ub + K, win);
        else
            for (int r = 0; r < KV; ++r)
                win[r] = v4d{0, 0, 0, 0};
        v4d q[RV];
        for (int r = 0; r < RV; ++r)
            q[r] = acc0[r] + acc1[r];
        for (int r = 0; r < KV; ++r)
            q[SV + r] += win[r];

        // The decisions: v_j * h is h with its sign bit xor-ed with y_j's.
        double c[K];
        for (int j = 0; j < K; ++j) {
            c[j] = cand[j / 4][j % 4];
            ZUVO_OPAQUE(c[j]);
        }
        double sg[K];
#pragma GCC unroll 8
        for (int j = 0; j < K; ++j) {
            const double s = std::bit_cast<double>(std::bit_cast<std::uint64_t>(c[j]) & 0x8000000000000000ull);
            sg[j] = s;
#pragma GCC unroll 8
            for (int i = j + 1; i < K; ++i) {
                c[i] += std::bit_cast<double>(std::bit_cast<std::uint64_t>(h[i - j]) ^ std::bit_cast<std::uint64_t>(s));
                ZUVO_OPAQUE(c[i]);
            }
        }
        if constexpr (PACK) {
            unsigned neg = 0;
            for (int j = 0; j < K; ++j)
                neg |= unsigned(std::bit_cast<std::uint64_t>(sg[j]) >> 63) << (7 - j);
            bits[b] = std::uint8_t(~neg);
        } else {
            std::uint8_t* bo = bits + b * K;
            for (int j = 0; j < K; ++j)
                bo[j] = std::bit_cast<std::uint64_t>(sg[j]) == 0;
        }
        if constexpr (SYM) {
            for (int m = 0; m < K; ++m) {
                // v - u, with v = +-1 from the sign bit
                const double vm = std::bit_cast<double>(std::bit_cast<std::uint64_t>(1.0)
                                                        ^ std::bit_cast<std::uint64_t>(sg[m]));
                const double e = vm - ub[m];
                for (int r = 0; r < RV; ++r)
                    q[r] += Vv[m][r] * e;
            }
        } else {
            for (int m = 0; m < K; ++m) {
                const v4i sm = (v4i)(v4d){sg[m], sg[m], sg[m], sg[m]};
                for (int r = 0; r < RV; ++r)
                    q[r] += (v4d)((v4i)Vv[m][r] ^ sm);
            }
        }
        v4i over = {0, 0, 0, 0};
        for (int i = 0; i < SV; ++i)
            over |= (q[i] > lim[i]) | (q[i] < limLo[i]);
        for (int i = 0; i < SV; ++i)
            x[i] = q[i];
        for (int r = 0; r < KV; ++r)
            cand[r] = q[SV + r];
        if constexpr (TRACK)
            for (int i = 0; i < SV; ++i) {
                const v4d a = x[i] < 0 ? -x[i] : x[i];
                pk[i] = a > pk[i] ? a : pk[i];
            }
        if (__builtin_expect((over[0] | over[1] | over[2] | over[3]) != 0, 0)) {
            for (int i = 0; i < SV; ++i) {
                x[i] = x[i] > lim[i] ? lim[i] : x[i];
                x[i] = x[i] < limLo[i] ? limLo[i] : x[i];
            }
            ++clipped;
            flags[b] = 1;
            if (!last)
                candFromState(ub + K);
        } else {
            flags[b] = 0;
        }
    }
    std::memcpy(xio, x, sizeof x);
    if constexpr (TRACK)
        for (int i = 0; i < k.n; ++i) // peak has one entry per real state
            peak[i] = std::max(peak[i], pk[i / 4][i % 4]);
    return clipped;
}

#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define ZUVO_CLONES __attribute__((target_clones("arch=x86-64-v4", "arch=x86-64-v3", "default")))
#else
#define ZUVO_CLONES
#endif

ZUVO_CLONES static std::size_t run4(const BlockKernel& k, double* x, const double* u, std::size_t nb, std::uint8_t* bits,
                                    std::uint8_t* f, double* pk)
{
    return k.symmetric ? runBlocksT<4, false, true>(k, x, u, nb, bits, f, pk)
                       : runBlocksT<4, false, false>(k, x, u, nb, bits, f, pk);
}
ZUVO_CLONES static std::size_t run4p(const BlockKernel& k, double* x, const double* u, std::size_t nb,
                                     std::uint8_t* bytes, std::uint8_t* f)
{
    return k.symmetric ? runBlocksT<4, false, true, true>(k, x, u, nb, bytes, f, nullptr)
                       : runBlocksT<4, false, false, true>(k, x, u, nb, bytes, f, nullptr);
}
ZUVO_CLONES static std::size_t run8(const BlockKernel& k, double* x, const double* u, std::size_t nb, std::uint8_t* bits,
                                    std::uint8_t* f, double* pk)
{
    return k.symmetric ? runBlocksT<8, false, true>(k, x, u, nb, bits, f, pk)
                       : runBlocksT<8, false, false>(k, x, u, nb, bits, f, pk);
}
ZUVO_CLONES static std::size_t run8p(const BlockKernel& k, double* x, const double* u, std::size_t nb,
                                     std::uint8_t* bytes, std::uint8_t* f)
{
    return k.symmetric ? runBlocksT<8, false, true, true>(k, x, u, nb, bytes, f, nullptr)
                       : runBlocksT<8, false, false, true>(k, x, u, nb, bytes, f, nullptr);
}
ZUVO_CLONES static std::size_t run12(const BlockKernel& k, double* x, const double* u, std::size_t nb,
                                     std::uint8_t* bits, std::uint8_t* f, double* pk)
{
    return k.symmetric ? runBlocksT<12, false, true>(k, x, u, nb, bits, f, pk)
                       : runBlocksT<12, false, false>(k, x, u, nb, bits, f, pk);
}
ZUVO_CLONES static std::size_t run12p(const BlockKernel& k, double* x, const double* u, std::size_t nb,
                                     std::uint8_t* bytes, std::uint8_t* f)
{
    if (k.n <= 10) // orders 9 and 10: two padding columns skipped
        return k.symmetric ? runBlocksT<12, false, true, true, 10>(k, x, u, nb, bytes, f, nullptr)
                           : runBlocksT<12, false, false, true, 10>(k, x, u, nb, bytes, f, nullptr);
    return k.symmetric ? runBlocksT<12, false, true, true>(k, x, u, nb, bytes, f, nullptr)
                       : runBlocksT<12, false, false, true>(k, x, u, nb, bytes, f, nullptr);
}
ZUVO_CLONES static std::size_t run16(const BlockKernel& k, double* x, const double* u, std::size_t nb,
                                     std::uint8_t* bits, std::uint8_t* f, double* pk)
{
    return k.symmetric ? runBlocksT<16, false, true>(k, x, u, nb, bits, f, pk)
                       : runBlocksT<16, false, false>(k, x, u, nb, bits, f, pk);
}
ZUVO_CLONES static std::size_t run16p(const BlockKernel& k, double* x, const double* u, std::size_t nb,
                                     std::uint8_t* bytes, std::uint8_t* f)
{
    return k.symmetric ? runBlocksT<16, false, true, true>(k, x, u, nb, bytes, f, nullptr)
                       : runBlocksT<16, false, false, true>(k, x, u, nb, bytes, f, nullptr);
}

// Design-time runs that also record the state peaks.
ZUVO_CLONES static std::size_t runTracked(const BlockKernel& k, double* x, const double* u, std::size_t nb, std::uint8_t* bits,
                              std::uint8_t* f, double* pk)
{
    switch (k.np) {
    case 4: return runBlocksT<4, true, false>(k, x, u, nb, bits, f, pk);
    case 8: return runBlocksT<8, true, false>(k, x, u, nb, bits, f, pk);
    case 12: return runBlocksT<12, true, false>(k, x, u, nb, bits, f, pk);
    default: return runBlocksT<16, true, false>(k, x, u, nb, bits, f, pk);
    }
}

std::size_t runBlocks(const BlockKernel& k, double* x, const double* u, std::size_t nblocks, std::uint8_t* bits,
                      std::uint8_t* flags, double* peak, bool packed)
{
    if (peak)
        return runTracked(k, x, u, nblocks, bits, flags, peak);
    if (packed) {
        switch (k.np) {
        case 4: return run4p(k, x, u, nblocks, bits, flags);
        case 8: return run8p(k, x, u, nblocks, bits, flags);
        case 12: return run12p(k, x, u, nblocks, bits, flags);
        default: return run16p(k, x, u, nblocks, bits, flags);
        }
    }
    switch (k.np) {
    case 4: return run4(k, x, u, nblocks, bits, flags, peak);
    case 8: return run8(k, x, u, nblocks, bits, flags, peak);
    case 12: return run12(k, x, u, nblocks, bits, flags, peak);
    default: return run16(k, x, u, nblocks, bits, flags, peak);
    }
}

} // namespace zuvo::dsp::detail
