// Measures how many formulas a second the package counts; prints one line: name, tab, formulas per second.
//
//   npm ci && node bench.mjs [file with one formula a line]
//
// The package counts atoms and knows no masses, so this one figure stands beside ELEMENTSCOUNT and MOL alike.

import { readFileSync } from 'node:fs';
import chemicalFormula from 'chemical-formula';

const WARM_UP_ROUNDS = 20_000;
const ROUNDS = 40_000;
const REPETITIONS = 9;

const file = process.argv[2] ?? new URL('../../school_formulas.txt', import.meta.url);
const formulas = readFileSync(file, 'utf8').split('\n').filter((line) => line !== '');

// The sum keeps the engine from dropping work whose result nobody reads.
let sum = 0;

function countAll(rounds) {
  for (let round = 0; round < rounds; ++round) {
    for (const formula of formulas) {
      const counts = chemicalFormula(formula);
      for (const symbol in counts) {
        sum += counts[symbol];
      }
    }
  }
}

// Counts the processor's time, as the benchmarks beside it do, so that a busy machine changes little.
function formulasPerSecond() {
  const start = process.cpuUsage();
  countAll(ROUNDS);
  const { user, system } = process.cpuUsage(start);
  return (ROUNDS * formulas.length) / ((user + system) / 1e6);
}

function median(values) {
  return values.sort((left, right) => left - right)[Math.floor(values.length / 2)];
}

countAll(WARM_UP_ROUNDS);
const rates = Array.from({ length: REPETITIONS }, formulasPerSecond);
if (!Number.isFinite(sum)) {
  throw new Error('the counts are not numbers');
}
console.log(`chemical-formula@6.0.0\t${Math.round(median(rates))}`);
