#pragma once

// Labels waarvan het venster zelf zegt bij welk veld ze horen.

/// Een label of kader dat de toolkit niet verdeelt; op Windows doet zij dat nooit.
template <typename Basis>
class VastLabel : public Basis {
  public:
    using Basis::Basis;
};
