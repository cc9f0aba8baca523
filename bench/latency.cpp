// What one access to memory costs that no cache line before it foretold, by how much is gone through that
// way: the reason why ten times the data may cost more than ten times the time.

#include <chrono>
#include <cstddef>
#include <iostream>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace
{

constexpr std::size_t Kilobytes[] = {250, 500, 1000, 2000, 4000, 8000, 16000, 64000};
constexpr int Steps = 2'000'000;

/// As long as a line of the caches.
struct alignas(64) Place
{
    std::size_t Next = 0;
};

/// One ring through all places, in a random order.
std::vector<Place> RandomRing(std::size_t count)
{
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::mt19937_64 random(1);
    for (std::size_t i = count; i > 1; --i)
        std::swap(order[i - 1], order[random() % i]);
    std::vector<Place> ring(count);
    for (std::size_t i = 0; i < count; ++i)
        ring[order[i]].Next = order[(i + 1) % count];
    return ring;
}

/// Where so many steps from a place lead.
std::size_t Walked(const std::vector<Place>& ring, std::size_t place, std::size_t steps)
{
    while (steps-- > 0)
        place = ring[place].Next;
    return place;
}

} // namespace

/// latency: prints lines of kilobytes and nanoseconds.
int main()
{
    using Clock = std::chrono::steady_clock;
    for (const std::size_t size : Kilobytes)
    {
        const std::vector<Place> ring = RandomRing(size * 1000 / sizeof(Place));
        const std::size_t begin = Walked(ring, 0, ring.size() + 1); // into the caches, as far as it fits
        const Clock::time_point start = Clock::now();
        const std::size_t end = Walked(ring, begin, Steps);
        const std::chrono::duration<double, std::nano> taken = Clock::now() - start;
        if (end >= ring.size()) // never; but the walk has to be taken for an answer
            return 1;
        std::cout << size << ' ' << taken.count() / Steps << '\n';
    }
    return 0;
}
