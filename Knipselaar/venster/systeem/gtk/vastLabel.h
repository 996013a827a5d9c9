#pragma once

// Labels waarvan het venster zelf zegt bij welk veld ze horen.

/// Een label of kader dat de toolkit niet verdeelt. Zij geeft een label anders aan wat er in de tabvolgorde
/// op volgt; een kader is echter eerder gemaakt dan zijn veld, en een schermlezer noemt dan het verkeerde.
template <typename Basis>
class VastLabel : public Basis {
  public:
    using Basis::Basis;

    bool GTKWidgetNeedsMnemonic() const override { return false; }
};
