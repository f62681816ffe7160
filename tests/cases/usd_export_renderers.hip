set -g _HIP_SAVEVERSION = '19.5.303'
out/usd_k.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/render/k.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	BRAY_HdKarma	)
lopoutput	[ 0	locks=0 ]	(	"$HIP/usd/k.usd"	)
}
out/usd_a1.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/render/a1.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	HdArnoldRendererPlugin	)
lopoutput	[ 0	locks=0 ]	(	"$HIP/usd/a1.usd"	)
}
out/usd_a2.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/render/a2.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	HdArnoldRendererPlugin	)
lopoutput	[ 0	locks=0 ]	(	"$HIP/usd/a2.$F4.usd"	)
}
out/usd_rs.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/render/rs.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	HdRedshiftRendererPlugin	)
lopoutput	[ 0	locks=0 ]	(	"$HIP/usd/rs.$F4.rs"	)
}
