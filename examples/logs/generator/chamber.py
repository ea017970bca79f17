"""A climate chamber with plants in it, simulated well enough to give curves worth looking at.

Only additions, multiplications, divisions and comparisons are used: unlike the functions of a
mathematical library they give the same last bit everywhere.
"""

import collections

Column = collections.namedtuple("Column", "group name unit decimals")

COLUMNS = [Column(*c) for c in (
    ("System", "Obs", "", 0),
    ("System", "Time", "hh:mm:ss", 0),
    ("System", "Step", "1", 0),
    ("System", "Door", "1", 0),
    ("System", "Tcase", "°C", 2),
    ("Climate", "Tset", "°C", 2),
    ("Climate", "Tair", "°C", 2),
    ("Climate", "Tleaf", "°C", 2),
    ("Climate", "Tsoil", "°C", 2),
    ("Climate", "Tdew", "°C", 2),
    ("Climate", "RHset", "%", 1),
    ("Climate", "RH", "%", 1),
    ("Climate", "VPD", "kPa", 3),
    ("Climate", "Wind", "m/s", 2),
    ("Gas", "CO2set", "µmol/mol", 0),
    ("Gas", "CO2", "µmol/mol", 1),
    ("Gas", "H2O", "mmol/mol", 2),
    ("Gas", "O2", "%", 3),
    ("Gas", "Flow", "L/min", 3),
    ("Gas", "Pamb", "kPa", 2),
    ("Light", "PARset", "µmol/m²/s", 0),
    ("Light", "PAR", "µmol/m²/s", 1),
    ("Light", "PARleaf", "µmol/m²/s", 1),
    ("Light", "Lamp", "%", 1),
    ("Light", "Tlamp", "°C", 1),
    ("Power", "Heater", "%", 1),
    ("Power", "Cooler", "%", 1),
    ("Power", "Humid", "%", 1),
    ("Power", "Fan", "rpm", 0),
    ("Power", "Power", "W", 1),
)]
SOIL_COLUMNS = [Column("Soil", "Soil{}".format(n), "m³/m³", 4) for n in (1, 2, 3, 4)]

Setting = collections.namedtuple("Setting", "step t rh co2 par")


class Random:
    """A 64-bit linear congruential generator; its upper bits are random enough for noise."""

    def __init__(self, seed):
        self.state = seed * 0x9E3779B97F4A7C15 % 2**64

    def uniform(self):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2**64
        return (self.state >> 11) / 2**53

    def noise(self, deviation):
        """Nearly normal: a sum of four uniform numbers."""
        total = self.uniform() + self.uniform() + self.uniform() + self.uniform()
        return (total - 2.0) * 1.7320508 * deviation


class Program:
    """Set points over time: each step ramps to its values for a while and then holds them."""

    def __init__(self):
        self.steps = []

    def add(self, minutes, t, rh, co2, par, ramp=0):
        self.steps.append((minutes * 60.0, ramp * 60.0, (t, rh, co2, par)))
        return self

    def at(self, seconds):
        before = self.steps[0][2]
        for number, (length, ramp, goal) in enumerate(self.steps):
            if seconds < length or number == len(self.steps) - 1:
                part = 1.0 if seconds >= ramp else seconds / ramp
                return Setting(number + 1, *(a + (b - a) * part for a, b in zip(before, goal)))
            seconds -= length
            before = goal


def day_program():
    """Evening, night, dawn, a light curve, a CO2 curve, a staircase of temperatures, frost."""
    program = Program().add(80, 24, 60, 400, 600).add(60, 16, 75, 400, 0, ramp=60)
    program.add(420, 16, 75, 420, 0).add(120, 23, 60, 400, 800, ramp=120)
    for par in (1500, 1200, 900, 600, 300, 100, 50):
        program.add(25, 25, 55, 400, par)
    for co2 in (400, 200, 100, 600, 800, 1200):
        program.add(40, 25, 55, co2, 1000)
    for t in (22, 25, 28, 31, 34):
        program.add(40, t, 50, 400, 800)
    return program.add(150, 0.5, 80, 400, 0, ramp=120).add(600, 0.5, 80, 400, 0)


def ramp_program():
    program = Program().add(60, 18, 65, 400, 0).add(90, 30, 50, 400, 900, ramp=60)
    program.add(80, 30, 50, 700, 900).add(70, 24, 70, 700, 300, ramp=40)
    return program.add(300, 18, 65, 400, 0, ramp=60)


def soil_program():
    program = Program().add(120, 20, 60, 400, 400).add(240, 26, 55, 400, 1000, ramp=60)
    return program.add(120, 28, 45, 400, 1200, ramp=30).add(240, 18, 70, 400, 0, ramp=90)


def saturation_pressure(t):
    """Of water vapour, in kPa, at t degrees Celsius: Lowe's polynomial of 1977."""
    factors = (6.107799961, 4.436518521e-1, 1.428945805e-2, 2.650648471e-4, 3.031240396e-6,
               2.034080948e-8, 6.136820929e-11)
    result = 0.0
    for factor in reversed(factors):
        result = result * t + factor
    return result * 0.1


def dew_point(pressure):
    low, high = -45.0, 60.0
    for _ in range(24):
        middle = (low + high) * 0.5
        if saturation_pressure(middle) < pressure:
            low = middle
        else:
            high = middle
    return low


def clamp(value, low, high):
    return max(low, min(high, value))


class Controller:
    """Proportional and integral, with an output between low and 100 percent."""

    def __init__(self, gain, reset, low):
        self.gain, self.reset, self.low, self.sum = gain, reset, low, 0.0

    def output(self, error, seconds):
        # The sum moves only near the set point; otherwise each ramp would overshoot for hours.
        if abs(error) * self.gain < 100:
            self.sum = clamp(self.sum + error * self.gain * seconds / self.reset, self.low, 100.0)
        return clamp(error * self.gain + self.sum, self.low, 100.0)


class Chamber:
    """Advances in short steps, and tells its values once a period."""

    STEP = 5.0

    def __init__(self, seed, period, setting):
        self.random = Random(seed)
        self.period = period
        self.air = self.soil = setting.t - 1.5
        self.case = 21.5
        self.vapour = saturation_pressure(self.air) * (setting.rh - 8) / 100
        self.co2 = 455.0
        self.par = setting.par
        self.lamp_heat = setting.par * 0.03
        self.pressure, self.oxygen = 100.82, 20.93
        self.water = [0.31, 0.28, 0.34, 0.25]
        self.temperature = Controller(35.0, 400.0, -100.0)
        self.humidity = Controller(9.0, 300.0, 0.0)

    def advance(self, setting, door_open=False, glitch=False):
        for _ in range(int(self.period / self.STEP)):
            self.step(setting, door_open)
        self.drift()
        return self.values(setting, door_open, glitch)

    def step(self, setting, door_open):
        dt = self.STEP
        self.demand = self.temperature.output(setting.t - self.air, dt)
        self.humid = self.humidity.output(setting.rh - self.relative(), dt)
        self.par += (setting.par - self.par) * dt / 15
        self.lamp_heat += (setting.par * 0.03 - self.lamp_heat) * dt / 700
        self.air += dt * (self.demand * 1.5e-4 + (self.case - self.air) / 9000 + self.par * 1.2e-6)
        self.soil += dt * (self.air - self.soil) / 2600
        drying = max(-self.demand, 0.0) * 6e-6 + 1.5e-4
        self.vapour += dt * (self.humid * 1.1e-5 + self.par * 2e-7 - drying * self.vapour)
        self.vapour = min(self.vapour, saturation_pressure(self.air) * 0.985)
        uptake = self.par / (self.par + 500) * self.co2 / (self.co2 + 300) * 0.12
        dosing = clamp((setting.co2 - self.co2) * 0.02, -1.2, 1.5)
        self.co2 += dt * (dosing - uptake + 0.01)
        if door_open:
            self.mix_with_room(dt / 60)

    def mix_with_room(self, part):
        self.air += (21.5 - self.air) * part
        self.vapour += (1.05 - self.vapour) * part
        self.co2 += (470.0 - self.co2) * part

    def drift(self):
        """What wanders slowly: the case, the air pressure, the oxygen sensor, the soil."""
        hours = self.period / 3600
        self.case += (21.5 + self.lamp_heat * 0.06 - self.case) * hours + self.random.noise(0.02)
        self.pressure += (100.9 - self.pressure) * hours * 0.03 + self.random.noise(0.004)
        self.oxygen += (20.93 - self.oxygen) * hours + self.random.noise(0.0006)
        loss = hours * (0.001 + self.par * 4e-6)
        for n, speed in enumerate((1.0, 1.3, 0.7, 1.1)):
            self.water[n] -= loss * speed * self.water[n] * 4

    def relative(self):
        return 100 * self.vapour / saturation_pressure(self.air)

    def values(self, setting, door_open, glitch):
        values = {"Step": setting.step, "Door": int(door_open), "Tset": setting.t,
                  "RHset": setting.rh, "CO2set": setting.co2, "PARset": setting.par}
        values.update(self.climate())
        values.update(self.gas(glitch))
        values.update(self.light(setting))
        values.update(self.power())
        for n, water in enumerate(self.water):
            values["Soil{}".format(n + 1)] = water + self.random.noise(0.0008)
        return values

    def climate(self):
        noise = self.random.noise
        relative = self.relative()
        leaf = self.air + self.par * 0.0016 - (100 - relative) * 0.018
        return {"Tcase": self.case + noise(0.05), "Tair": self.air + noise(0.04),
                "Tleaf": leaf + noise(0.06), "Tsoil": self.soil + noise(0.02),
                "Tdew": dew_point(self.vapour) + noise(0.03), "RH": relative + noise(0.25),
                "VPD": max(saturation_pressure(leaf) - self.vapour, 0.0) + abs(noise(0.003)),
                "Wind": 0.55 + abs(self.demand) * 0.004 + noise(0.02)}

    def gas(self, glitch):
        noise = self.random.noise
        return {"CO2": self.co2 + noise(1.4) + (380.0 if glitch else 0.0),
                "H2O": 1000 * self.vapour / self.pressure + noise(0.03),
                "O2": self.oxygen + noise(0.002), "Flow": 4.8 + noise(0.008),
                "Pamb": self.pressure + noise(0.01)}

    def light(self, setting):
        noise = self.random.noise
        par = max(self.par, 0.0) * (1 + noise(0.004))
        return {"PAR": par, "PARleaf": par * 0.83 * (1 + noise(0.006)),
                "Lamp": setting.par / 16.0, "Tlamp": self.air + self.lamp_heat + noise(0.2)}

    def power(self):
        noise = self.random.noise
        heater, cooler = max(self.demand, 0.0), max(-self.demand, 0.0)
        starting = 420.0 if cooler > 1 and self.random.uniform() < 0.004 else 0.0
        power = 160 + heater * 9 + cooler * 8 + self.humid * 3 + self.par * 0.85 + starting
        return {"Heater": heater, "Cooler": cooler, "Humid": self.humid,
                "Fan": 900 + abs(self.demand) * 6 + noise(5), "Power": power + noise(4)}
