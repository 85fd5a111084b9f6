// Measures how many formulas a second the package parses into its list of tokens; prints one line: name, tab,
// formulas per second.
//
//   npm ci && node bench.mjs [file with one formula a line]

import { readFileSync } from 'node:fs';
import { parse } from 'mf-parser';

const WARM_UP_ROUNDS = 5_000;
const ROUNDS = 10_000;
const REPETITIONS = 9;

const file = process.argv[2] ?? new URL('../../school_formulas.txt', import.meta.url);
const formulas = readFileSync(file, 'utf8').split('\n').filter((line) => line !== '');

// The sum keeps the engine from dropping work whose result nobody reads.
let sum = 0;

function parseAll(rounds) {
  for (let round = 0; round < rounds; ++round) {
    for (const formula of formulas) {
      sum += parse(formula).length;
    }
  }
}

// Counts the processor's time, as the benchmarks beside it do, so that a busy machine changes little.
function formulasPerSecond() {
  const start = process.cpuUsage();
  parseAll(ROUNDS);
  const { user, system } = process.cpuUsage(start);
  return (ROUNDS * formulas.length) / ((user + system) / 1e6);
}

function median(values) {
  return values.sort((left, right) => left - right)[Math.floor(values.length / 2)];
}

parseAll(WARM_UP_ROUNDS);
const rates = Array.from({ length: REPETITIONS }, formulasPerSecond);
if (sum === 0) {
  throw new Error('nothing was parsed');
}
console.log(`mf-parser@3.9.3\t${Math.round(median(rates))}`);
